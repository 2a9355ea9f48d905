#include "OpenReport.h"

#include "media/FolderFiles.h"

using namespace _qv_commonwnd;

namespace {

void ReportFiles(IGalleryContext& context, const std::vector<CString>& files) {
    for (const CString& file : files)
        context.Report(L"file", file);
    context.ReportNumber(L"files", static_cast<LONGLONG>(files.size()));
}

std::vector<CString> ChosenFiles(CQVFileDialog& dialog) {
    std::vector<CString> files;
    for (POSITION pos = dialog.GetStartPosition(); pos;)
        files.push_back(dialog.GetNextPathName(pos));
    return files;
}

} // namespace

void StartIn(CQVFileDialog& dialog, const CString& folder) {
    if (!folder.IsEmpty())
        dialog.m_ofn.lpstrInitialDir = folder;
}

bool ReportOpened(IGalleryContext& context, CQVFileDialog& dialog, INT_PTR end, const CString& filter) {
    if (!context.Confirmed(L"CQVFileDialog", end))
        return false;
    if (dialog.GetSelTpye() == eSelForder) {
        const CString folder = dialog.GetSelForderPath();
        const CString type = dialog.GetSelFileFormat();
        context.Report(L"folder", folder);
        context.Report(L"format", type);
        ReportFiles(context, FilesOfType(folder, PatternOfType(filter, type)));
    } else {
        ReportFiles(context, ChosenFiles(dialog));
    }
    return true;
}
