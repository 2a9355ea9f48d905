// SkinPicture.h: a picture of the current skin by its path below the skin folder, kept loaded for all
// controls.
#pragma once

#include "QVSkin.h"

namespace _qv_commonctrl {

//     SkinPicture(L"CommonCtrl\\Scroll\\up.png").Draw(dc, frame, x, y);
//
// Pictures stay loaded until the skin changes, so that painting never decodes. The object itself owns
// nothing.
class SkinPicture {
  public:
    // Frames are as the DPI asks for them (0: as they are in the file).
    explicit SkinPicture(const wchar_t* relativePath, int type = QVIMAGE_STATES, UINT dpi = 0);

    CSize Size() const { return QV_GetImageSize(m_image); }
    void Draw(CDC* dc, int frame, int x, int y) const { QV_DrawImage(dc, m_image, frame, x, y); }

  private:
    const CQVSkinImage* m_image;
};

// Gives all kept pictures back; called when the skin changes.
void DropSkinPictures();

} // namespace _qv_commonctrl
