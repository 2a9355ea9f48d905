// The folder chooser.
#include "GalleryItem.h"

using namespace _qv_commonwnd;

namespace {

void ChooseFolder(IGalleryContext& context) {
    CQVPathDialog dialog(context.MainWnd());
    dialog.m_strPath = context.SampleFolder();
    context.Report(L"CQVPathDialog", dialog.DoModal() == IDOK ? dialog.GetPathName() : CString(L"IDCANCEL"));
}

const GalleryRegistration chooseFolder({GalleryGroup::Folders, L"folder", L"IDS_GALLERY_FOLDER",
                                        ChooseFolder});

} // namespace
