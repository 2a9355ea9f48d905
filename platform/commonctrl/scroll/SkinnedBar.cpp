#include "SkinnedBar.h"

namespace _qv_commonctrl {

SkinnedBar::SkinnedBar(HWND target, OverlayKind kind)
    : m_target(target), m_overlay(target, kind), m_id(kind == OverlayKind::Vertical ? SB_VERT : SB_HORZ),
      m_objectId(kind == OverlayKind::Vertical ? OBJID_VSCROLL : OBJID_HSCROLL),
      m_hitCode(kind == OverlayKind::Vertical ? HTVSCROLL : HTHSCROLL) {
}

void SkinnedBar::Synchronise() {
    const LONG_PTR style = GetWindowLongPtrW(m_target, GWL_STYLE);
    SCROLLBARINFO info = {};
    info.cbSize = sizeof(info);
    const bool showing = (style & WS_VISIBLE) && (style & (IsVertical() ? WS_VSCROLL : WS_HSCROLL)) &&
                         GetScrollBarInfo(m_target, m_objectId, &info) &&
                         !(info.rgstate[0] & STATE_SYSTEM_INVISIBLE);
    if (!showing) {
        m_rect.SetRectEmpty();
        m_overlay.Hide();
        return;
    }
    m_rect = info.rcScrollBar;
    m_overlay.Show(m_rect, {ShapeOf(info), hot, pressed});
}

ScrollBarShape SkinnedBar::ShapeOf(const SCROLLBARINFO& info) const {
    ScrollBarShape shape;
    shape.length = IsVertical() ? m_rect.Height() : m_rect.Width();
    shape.arrow = ArrowLength(shape.length, GetSystemMetrics(IsVertical() ? SM_CYVSCROLL : SM_CXHSCROLL));
    shape.thumbBegin = info.xyThumbTop;
    shape.thumbEnd = info.xyThumbBottom;
    SCROLLINFO scroll = {};
    scroll.cbSize = sizeof(scroll);
    scroll.fMask = SIF_ALL;
    const bool known = GetScrollInfo(m_target, m_id, &scroll);
    const bool nothingToScroll =
        known && static_cast<long long>(scroll.nMax) - scroll.nMin < static_cast<long long>(scroll.nPage);
    shape.enabled =
        IsWindowEnabled(m_target) && !(info.rgstate[0] & STATE_SYSTEM_UNAVAILABLE) && !nothingToScroll;
    // A dragged thumb follows the mouse, whether or not the window scrolls along.
    if (known && pressed == ScrollPart::Thumb)
        return WithThumbAt(shape, {scroll.nMin, scroll.nMax, scroll.nPage}, scroll.nTrackPos);
    return shape;
}

ScrollPart SkinnedBar::PartAt(CPoint screen) const {
    SCROLLBARINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetScrollBarInfo(m_target, m_objectId, &info) || !m_rect.PtInRect(screen))
        return ScrollPart::None;
    return HitScrollPart(ShapeOf(info), IsVertical() ? screen.y - m_rect.top : screen.x - m_rect.left);
}

} // namespace _qv_commonctrl
