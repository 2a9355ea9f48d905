// The open and save dialogs.
#include "OpenReport.h"

#include "gallery/GalleryItem.h"

using namespace _qv_commonwnd;

namespace {

constexpr const wchar_t* kOpenFilter =
    L"Media|*.png;*.jpg;*.bmp;*.psd;*.wav;*.avi|Pictures|*.png;*.jpg;*.bmp;*.psd|"
    L"Sound|*.wav|Text|*.txt|All files|*.*|";
constexpr const wchar_t* kSaveFilter = L"AVI|*.avi|MP4|*.mp4|All files|*.*|";

void Open(IGalleryContext& context, DWORD flags) {
    CQVFileDialog dialog(TRUE, nullptr, nullptr, flags, kOpenFilter, context.MainWnd(), 0, FALSE, FALSE,
                         FDO_KEEPOK);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    ReportOpened(context, dialog, dialog.DoModal(), kOpenFilter);
}

void OpenOne(IGalleryContext& context) {
    Open(context, OFN_FILEMUSTEXIST | OFN_EXPLORER);
}

void OpenMany(IGalleryContext& context) {
    Open(context, OFN_FILEMUSTEXIST | OFN_EXPLORER | OFN_ALLOWMULTISELECT);
}

void Save(IGalleryContext& context) {
    CQVFileDialog dialog(FALSE, nullptr, L"Clip", OFN_EXPLORER, kSaveFilter, context.MainWnd(), 0, FALSE,
                         FALSE, FDO_KEEPOK);
    const CString folder = context.SampleFolder();
    StartIn(dialog, folder);
    if (!context.Confirmed(L"CQVFileDialog", dialog.DoModal()))
        return;
    context.Report(L"path", dialog.GetPathName());
    context.Report(L"name", dialog.GetFileName());
    context.Report(L"extension", dialog.GetFileExt());
    context.Report(L"title", dialog.GetFileTitle());
}

const GalleryRegistration openOne({GalleryGroup::Files, L"open", L"IDS_GALLERY_OPEN", OpenOne});
const GalleryRegistration openMany({GalleryGroup::Files, L"open-many", L"IDS_GALLERY_OPENMANY", OpenMany});
const GalleryRegistration save({GalleryGroup::Files, L"save", L"IDS_GALLERY_SAVE", Save});

} // namespace
