// Placing a picture in a frame, with a live preview.
#include "GalleryItem.h"

#include "PictureFile.h"
#include "PreviewWnd.h"

using namespace _qv_commonwnd;

namespace {

constexpr CSize kFrame(1280, 720);
constexpr CSize kWithoutPicture(320, 180);

void PlacePicture(IGalleryContext& context) {
    CSize size = kWithoutPicture;
    CBitmap picture;
    picture.Attach(LoadPictureFile(context.SampleFolder() + L"\\sunset.png", kFrame, size));
    CPreviewWnd preview;
    preview.Show(context.MainWnd(), kFrame, picture, size);

    CQVPicturePosDlg dialog(context.MainWnd());
    dialog.m_szRange = kFrame;
    dialog.m_szPicture = size;
    dialog.m_ptPos = CPoint(160, 90);
    dialog.m_pfnPosChange = [](void* data, CQVPicturePosDlg* now) {
        static_cast<CPreviewWnd*>(data)->MovePicture(now->m_ptPos);
    };
    dialog.m_pPosChangeData = &preview;
    preview.MovePicture(dialog.m_ptPos);
    if (dialog.DoModal() != IDOK) {
        context.Report(L"CQVPicturePosDlg", L"IDCANCEL");
        return;
    }
    CString text;
    text.Format(L"%d, %d", static_cast<int>(dialog.m_ptPos.x), static_cast<int>(dialog.m_ptPos.y));
    context.Report(L"CQVPicturePosDlg", text);
}

const GalleryRegistration place({GalleryGroup::Values, L"picturepos", L"IDS_GALLERY_PICTUREPOS",
                                 PlacePicture});

} // namespace
