// SkinnedBar.h: one scroll bar of a window: what the native bar says, shown by an overlay.
#pragma once

#include "ScrollOverlay.h"

namespace _qv_commonctrl {

class SkinnedBar {
  public:
    SkinnedBar(HWND target, OverlayKind kind);

    // Reads the native bar and shows what has changed.
    void Synchronise();
    void Repaint() { m_overlay.Repaint(); }

    bool IsShowing() const { return !m_rect.IsRectEmpty(); }
    const CRect& Rect() const { return m_rect; } // screen; empty while the bar does not show
    bool IsHitBy(WPARAM hitCode) const { return hitCode == m_hitCode; }
    ScrollPart PartAt(CPoint screen) const;

    ScrollPart hot = ScrollPart::None;
    ScrollPart pressed = ScrollPart::None;

  private:
    bool IsVertical() const { return m_id == SB_VERT; }
    ScrollBarShape ShapeOf(const SCROLLBARINFO& info) const;

    HWND m_target;
    ScrollOverlay m_overlay;
    int m_id;         // SB_VERT, SB_HORZ
    LONG m_objectId;  // OBJID_VSCROLL, OBJID_HSCROLL
    WPARAM m_hitCode; // HTVSCROLL, HTHSCROLL
    CRect m_rect;
};

} // namespace _qv_commonctrl
