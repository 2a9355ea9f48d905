// The working folders: the check at the application's start and the settings themselves.
#include "gallery/GalleryItem.h"

#include <QVCommonClass.h>

using namespace _qv_commonwnd;

namespace {

void ReportStored(IGalleryContext& context) {
    for (const wchar_t* key : {L"ResPath", L"MediaPath"})
        context.Report(key, _qv_commonclass::QV_GetProfileString(L"PathSet", key, L""));
}

void CheckFirstStart(IGalleryContext& context) {
    QV_InitResPath();
    ReportStored(context);
}

void EditPaths(IGalleryContext& context) {
    CQVSetResPath dialog(context.MainWnd());
    if (context.Confirmed(L"CQVSetResPath", dialog.DoModal()))
        ReportStored(context);
}

const GalleryRegistration firstStart({GalleryGroup::Folders, L"firststart", L"IDS_GALLERY_FIRSTSTART",
                                      CheckFirstStart});
const GalleryRegistration paths({GalleryGroup::Folders, L"paths", L"IDS_GALLERY_PATHS", EditPaths});

} // namespace
