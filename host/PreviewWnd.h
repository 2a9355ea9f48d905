// PreviewWnd.h: a small window that shows a picture in a frame, where the picture-position dialog says.
#pragma once

#include <QVCommonWnd.h>

class CPreviewWnd : public CWnd {
  public:
    CPreviewWnd();
    ~CPreviewWnd() override;

    // A window beside `owner`. `picture` is borrowed and must outlive the window; null shows the frame only.
    BOOL Show(CWnd* owner, CSize frame, HBITMAP picture, CSize pictureSize);
    void MovePicture(CPoint pos);

  protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    CSize m_frame;
    HBITMAP m_picture = nullptr;
    CSize m_pictureSize;
    CPoint m_pos;
};
