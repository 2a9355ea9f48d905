// The open dialog's further forms: with a preview, for a whole folder, for the layers of a document.
#include "FilePreviewWnd.h"
#include "FolderFiles.h"
#include "GalleryItem.h"

using namespace _qv_commonwnd;

namespace {

constexpr const wchar_t* kFilter = L"Pictures|*.png;*.jpg;*.bmp;*.psd|Sound|*.wav|All files|*.*|";

void StartIn(CQVFileDialog& dialog, const CString& folder) {
    if (!folder.IsEmpty())
        dialog.m_ofn.lpstrInitialDir = folder;
}

void ReportNumber(IGalleryContext& context, LPCWSTR name, INT_PTR number) {
    CString text;
    text.Format(L"%d", static_cast<int>(number));
    context.Report(name, text);
}

void ReportFiles(IGalleryContext& context, CQVFileDialog& dialog) {
    int count = 0;
    for (POSITION pos = dialog.GetStartPosition(); pos; ++count)
        context.Report(L"file", dialog.GetNextPathName(pos));
    ReportNumber(context, L"files", count);
}

// Imports what a folder holds of the chosen type.
void ReportFolder(IGalleryContext& context, CQVFileDialog& dialog) {
    context.Report(L"folder", dialog.GetSelForderPath());
    context.Report(L"format", dialog.GetSelFileFormat());
    CStringArray files;
    ListFolderFiles(dialog.GetSelForderPath(), PatternOfType(kFilter, dialog.GetSelFileFormat()), files);
    for (INT_PTR i = 0; i < files.GetSize(); ++i)
        context.Report(L"file", files.GetAt(i));
    ReportNumber(context, L"files", files.GetSize());
}

void Report(IGalleryContext& context, CQVFileDialog& dialog, INT_PTR end) {
    if (end != IDOK)
        context.Report(L"CQVFileDialog", L"IDCANCEL");
    else if (dialog.GetSelTpye() == eSelForder)
        ReportFolder(context, dialog);
    else
        ReportFiles(context, dialog);
}

void OpenWithPreview(IGalleryContext& context) {
    CFilePreviewWnd preview(context);
    if (!preview.CreateHidden())
        return;
    CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT, kFilter,
                         context.MainWnd(), 0, FALSE, FALSE, FDO_KEEPOK | FDO_IMPORTFOLDER);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    dialog.SetAdvanceWnd(&preview);
    Report(context, dialog, dialog.DoModal());
}

void ImportFolder(IGalleryContext& context) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, 0, kFilter, context.MainWnd(), 0, FALSE, FALSE,
                         FDO_IMPORTFOLDER);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    Report(context, dialog, dialog.DoModal());
}

// One line for each layer of the document, the bottom one first: taken or left out.
void ReportLayers(IGalleryContext& context, CQVFileDialog& dialog) {
    CStringArray names;
    std::vector<int> taken;
    dialog.GetImportLayerName(names);
    dialog.GetImportLayerInfo(taken);
    for (INT_PTR i = 0; i < names.GetSize() && static_cast<size_t>(i) < taken.size(); ++i)
        context.Report(taken[static_cast<size_t>(i)] ? L"layer" : L"left out", names.GetAt(i));
}

void ImportLayers(IGalleryContext& context) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, kFilter, context.MainWnd(), 0, FALSE,
                         FALSE, FDO_KEEPOK);
    dialog.EnableLayerInfo(2); // the panel may appear
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    const INT_PTR end = dialog.DoModal();
    Report(context, dialog, end);
    if (end != IDOK)
        return;
    context.Report(L"import", dialog.IsCompileImportType() ? L"rendered" : L"by layers");
    if (!dialog.IsCompileImportType())
        ReportLayers(context, dialog);
}

const GalleryRegistration preview({GalleryGroup::Files, L"open-preview", L"IDS_GALLERY_OPENPREVIEW",
                                   OpenWithPreview});
const GalleryRegistration importFolder({GalleryGroup::Files, L"import-folder", L"IDS_GALLERY_IMPORTFOLDER",
                                        ImportFolder});
const GalleryRegistration importLayers({GalleryGroup::Files, L"open-psd", L"IDS_GALLERY_OPENPSD",
                                        ImportLayers});

} // namespace
