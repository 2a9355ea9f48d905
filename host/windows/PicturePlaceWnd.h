// PicturePlaceWnd.h: a small window that shows a picture in a frame, where the picture-position dialog says.
#pragma once

#include "media/PixelBitmap.h"

class CPicturePlaceWnd : public CWnd {
  public:
    CPicturePlaceWnd() = default;
    ~CPicturePlaceWnd() override;

    // A window beside `owner`, with a frame of so many units. The picture is borrowed, must outlive the window and takes
    // `pictureSize` units; an empty one shows the frame only.
    BOOL Show(CWnd* owner, CSize frame, CPixelBitmap& picture, CSize pictureSize);
    void MovePicture(CPoint pos);

  protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    void PaintPicture(CDC& dc, const CRect& client);

    CSize m_frame;
    CPixelBitmap* m_picture = nullptr;
    CSize m_pictureSize;
    CPoint m_pos;
};
