// The open and save dialogs.
#include "GalleryItem.h"

using namespace _qv_commonwnd;

namespace {

constexpr const wchar_t* kOpenFilter =
    L"Media|*.png;*.jpg;*.bmp;*.psd;*.wav;*.avi|Pictures|*.png;*.jpg;*.bmp;*.psd|"
    L"Sound|*.wav|Text|*.txt|All files|*.*|";
constexpr const wchar_t* kSaveFilter = L"AVI|*.avi|MP4|*.mp4|All files|*.*|";
constexpr DWORD kKeepOpenButton = 0x1; // FDO_KEEPOK

struct OpenForm {
    DWORD flags;
    DWORD option;
};

// What the host does after every open dialog: reads the selection's kind, then the paths.
void ReportOpened(IGalleryContext& context, CQVFileDialog& dialog, INT_PTR end) {
    if (end != IDOK) {
        context.Report(L"CQVFileDialog", L"IDCANCEL");
        return;
    }
    if (dialog.GetSelTpye() == eSelForder) {
        context.Report(L"folder", dialog.GetSelForderPath());
        context.Report(L"format", dialog.GetSelFileFormat());
        return;
    }
    int count = 0;
    for (POSITION pos = dialog.GetStartPosition(); pos; ++count)
        context.Report(L"file", dialog.GetNextPathName(pos));
    CString number;
    number.Format(L"%d", count);
    context.Report(L"files", number);
}

void Open(IGalleryContext& context, const OpenForm& form) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, form.flags, kOpenFilter, context.MainWnd(), 0, FALSE, FALSE,
                         form.option);
    const CString folder = context.SampleFolder();
    if (!folder.IsEmpty())
        dialog.m_ofn.lpstrInitialDir = folder;
    ReportOpened(context, dialog, dialog.DoModal());
}

void OpenOne(IGalleryContext& context) {
    Open(context, {OFN_FILEMUSTEXIST | OFN_EXPLORER, kKeepOpenButton});
}

void OpenMany(IGalleryContext& context) {
    Open(context, {OFN_FILEMUSTEXIST | OFN_EXPLORER | OFN_ALLOWMULTISELECT, kKeepOpenButton});
}

void Save(IGalleryContext& context) {
    CQVFileDialog dialog(FALSE, nullptr, L"Clip", OFN_EXPLORER, kSaveFilter, context.MainWnd(), 0, FALSE,
                         FALSE, 0);
    const CString folder = context.SampleFolder();
    if (!folder.IsEmpty())
        dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) {
        context.Report(L"CQVFileDialog", L"IDCANCEL");
        return;
    }
    context.Report(L"path", dialog.GetPathName());
    context.Report(L"name", dialog.GetFileName());
    context.Report(L"extension", dialog.GetFileExt());
    context.Report(L"title", dialog.GetFileTitle());
}

const GalleryRegistration openOne({GalleryGroup::Files, L"open", L"IDS_GALLERY_OPEN", OpenOne});
const GalleryRegistration openMany({GalleryGroup::Files, L"open-many", L"IDS_GALLERY_OPENMANY", OpenMany});
const GalleryRegistration save({GalleryGroup::Files, L"save", L"IDS_GALLERY_SAVE", Save});

} // namespace
