// Placing a picture in a frame, with a live preview.
#include "gallery/GalleryItem.h"
#include "media/PictureFile.h"
#include "windows/PicturePlaceWnd.h"

using namespace _qv_commonwnd;

namespace {

constexpr CSize kFrame(1280, 720);
constexpr CSize kWithoutPicture(320, 180);
constexpr CPoint kFirstPlace(160, 90);

void PlacePicture(IGalleryContext& context) {
    CSize size = kWithoutPicture;
    CPixelBitmap picture;
    LoadPictureFile(context.SampleFolder() + L"\\sunset.png", kFrame, picture, size);
    CPicturePlaceWnd preview;
    preview.Show(context.MainWnd(), kFrame, picture, size);

    CQVPicturePosDlg dialog(context.MainWnd());
    dialog.m_szRange = kFrame;
    dialog.m_szPicture = size;
    dialog.m_ptPos = kFirstPlace;
    dialog.m_pfnPosChange = [](void* data, CQVPicturePosDlg* now) {
        static_cast<CPicturePlaceWnd*>(data)->MovePicture(now->m_ptPos);
    };
    dialog.m_pPosChangeData = &preview;
    preview.MovePicture(dialog.m_ptPos);
    if (!context.Confirmed(L"CQVPicturePosDlg", dialog.DoModal()))
        return;
    CString text;
    text.Format(L"%d, %d", static_cast<int>(dialog.m_ptPos.x), static_cast<int>(dialog.m_ptPos.y));
    context.Report(L"CQVPicturePosDlg", text);
}

const GalleryRegistration place({GalleryGroup::Values, L"picturepos", L"IDS_GALLERY_PICTUREPOS",
                                 PlacePicture});

} // namespace
