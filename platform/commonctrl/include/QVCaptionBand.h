// QVCaptionBand.h: the painted caption band with its close button and the two-colour frame round it. Skinned
// dialogs paint it in their non-client area; windows that lie over a system dialog paint it in their client
// area, each with figures of its own.
//
//     CQVCaptionBand m_band{figures};
//     void CMyFrame::OnPaint() {
//         CPaintDC paint(this);
//         CQVMemoDC dc(&paint, client);
//         m_band.Paint(&dc, client, {text, GetActiveWindow() == this, IsWindowEnabled()}, dpi);
//     }
//     void CMyFrame::OnMouseMove(UINT, CPoint point) {
//         if (m_band.MouseMove(client, point, dpi))
//             InvalidateRect(m_band.GetCloseBounds(client, dpi), FALSE);
//     }
#pragma once

#include "QVSkin.h"

namespace _qv_commonctrl {

// Figures of a band, in pixels at 96 DPI, and skin colour indexes. The band lies along the upper edge of an
// area (a client or window rectangle); the frame runs round the whole area, over the band's outer pixels.
struct QVCaptionFigures {
    int captionHeightPx = 28;          // from the area's top, the frame's lines included; 0: frame only
    int closeLeftFromRightPx = 33;     // the close button's left edge, counted from the area's right edge
    int closeRightFromRightPx = 5;     // its right edge, counted likewise
    int closeTopPx = 5;                // its top edge, counted from the area's top
    int closeBottomPx = 23;            // its bottom edge, counted likewise; no button when not below the top
    int textInsetPx = 10;              // left edge of the text, counted from the area's left edge
    int lineInsetPx = 2;               // how far the hairline under the band stays off both ends
    int textColor = QVCLR_TEXT_WINDOW; // colour index of the text
    int inactiveTextColor = QVCLR_TEXT_DISABLED; // the same while the window is not active
    int groundColor = -1;                        // colour index of the area below the band; -1: left as it is
};

// The band's parts, for hit tests.
enum class QVBandPart { None, Caption, Close };

// States of the close button; the numbers are the frames of its image.
enum class QVCloseState { Normal = 0, Hot = 1, Pressed = 2, Disabled = 3 };

// What a band shows that it does not know itself.
struct QVCaptionLook {
    LPCWSTR text = L"";    // caption; null is empty
    BOOL active = TRUE;    // the window is the active one: second set of button colours, full text colour
    BOOL closable = TRUE;  // FALSE: the close button is greyed and takes no mouse
    BOOL showClose = TRUE; // FALSE: no close button at all
};

// Geometry, painting and mouse state of one band. Holds no window. Rectangles and points are pixels in the
// co-ordinates of `area`; `dpi` is the window's (0: 96). User-interface thread.
class QVCOMMONCTRL_API CQVCaptionBand {
  public:
    explicit CQVCaptionBand(const QVCaptionFigures& figures = QVCaptionFigures());
    CQVCaptionBand(const CQVCaptionBand&) = delete;
    CQVCaptionBand& operator=(const CQVCaptionBand&) = delete;

    const QVCaptionFigures& GetFigures() const { return m_figures; }

    // ---- Geometry.
    CRect GetCaptionRect(const CRect& area, UINT dpi) const; // the whole band, frame lines included
    CRect GetCloseRect(const CRect& area, UINT dpi) const;   // empty when the figures have no button
    CRect GetCloseBounds(const CRect& area, UINT dpi) const; // the button with its outer border
    CRect GetTextRect(const CRect& area, UINT dpi) const;    // ends left of the button
    static int GetFrameWidth(UINT dpi);                      // outer and inner line together
    QVBandPart HitTest(const CRect& area, CPoint point, UINT dpi) const;

    // ---- Painting. Composes straight into `dc`, which should be a memory DC. Null does nothing.
    void Paint(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi);
    // Only the two-colour frame, for windows without a caption.
    static void PaintFrame(CDC* dc, const CRect& area, UINT dpi);

    // ---- Mouse. Each tells whether the button's picture has changed.
    BOOL MouseMove(const CRect& area, CPoint point, UINT dpi);
    BOOL MouseLeave(); // the pointer has left, or the capture was taken away: neither hot nor pressed
    BOOL ButtonDown(const CRect& area, CPoint point, UINT dpi);
    // `clicked` (may be null) becomes TRUE when the button was pressed and is let go over itself.
    BOOL ButtonUp(const CRect& area, CPoint point, UINT dpi, BOOL* clicked);
    // For windows that follow the mouse themselves: over the button, and the left button down there.
    void SetMouse(BOOL hot, BOOL pressed) { m_bHot = hot, m_bPressed = hot && pressed; }
    BOOL IsHot() const { return m_bHot; }
    BOOL IsPressed() const { return m_bPressed; } // since ButtonDown, also while the pointer is elsewhere
    QVCloseState GetCloseState(BOOL closable) const;

  private:
    void PaintClose(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi);
    void PaintText(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi) const;

    QVCaptionFigures m_figures;
    BOOL m_bHot = FALSE;
    BOOL m_bPressed = FALSE;
};

} // namespace _qv_commonctrl
