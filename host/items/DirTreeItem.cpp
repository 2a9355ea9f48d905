// A directory tree in a window of the host.
#include "gallery/GalleryItem.h"
#include "windows/DirTreeWnd.h"

namespace {

void ShowTree(IGalleryContext& context) {
    CDirTreeWnd window(context.MainWnd());
    if (context.Confirmed(L"QV_GetDirTree", window.DoModal()))
        context.Report(L"QV_GetDirTree", window.Chosen());
}

const GalleryRegistration tree({GalleryGroup::Folders, L"dirtree", L"IDS_GALLERY_DIRTREE", ShowTree});

} // namespace
