// The folder chooser.
#include "gallery/GalleryItem.h"

using namespace _qv_commonwnd;

namespace {

void ChooseFolder(IGalleryContext& context) {
    CQVPathDialog dialog(context.MainWnd());
    dialog.m_strPath = context.SampleFolder();
    if (context.Confirmed(L"CQVPathDialog", dialog.DoModal()))
        context.Report(L"CQVPathDialog", dialog.GetPathName());
}

const GalleryRegistration chooseFolder({GalleryGroup::Folders, L"folder", L"IDS_GALLERY_FOLDER",
                                        ChooseFolder});

} // namespace
