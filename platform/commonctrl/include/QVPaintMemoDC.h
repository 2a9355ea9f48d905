// QVPaintMemoDC.h: the picture of a window's WM_PAINT.
#pragma once

#include "QVMemoDC.h"

namespace _qv_commonctrl {

// What CQVPaintMemoDC needs before its base: the window's paint context and client rectangle.
class QVCOMMONCTRL_API QVPaintTarget {
  protected:
    explicit QVPaintTarget(CWnd* wnd);

    CPaintDC m_paint;
    CRect m_client;
};

// For a window's WM_PAINT: a picture of its client area, filled with a colour of the skin. When the object
// dies, the picture is copied to the window and the painting ends.
//     void CMyWnd::OnPaint() {
//         CQVPaintMemoDC dc(this, QVCLR_WINDOW);
//         dc.DrawText(...);
//     }
class QVCOMMONCTRL_API CQVPaintMemoDC : private QVPaintTarget, public CQVMemoDC {
  public:
    // wnd: a window whose thread is the caller's, in its WM_PAINT. groundColor: a QVCLR_* value.
    CQVPaintMemoDC(CWnd* wnd, int groundColor);

    // The whole client rectangle, in pixels, whatever part of it is to be painted.
    const CRect& Client() const { return m_client; }
};

} // namespace _qv_commonctrl
