#include "QVCaptionBand.h"

#include "paint/PaintKit.h"
#include "skin/SkinPicture.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr int kFrameLinePx = 1; // each of the frame's two lines
constexpr int kTextGapPx = 6;   // between the text and the close button
constexpr wchar_t kCloseImage[] = L"CommonCtrl\\Frame\\new\\close.png";

UINT KnownDpi(UINT dpi) {
    return dpi ? dpi : USER_DEFAULT_SCREEN_DPI;
}

} // namespace

CQVCaptionBand::CQVCaptionBand(const QVCaptionFigures& figures) : m_figures(figures) {
}

CRect CQVCaptionBand::GetCaptionRect(const CRect& area, UINT dpi) const {
    CRect caption(area);
    caption.bottom = caption.top + QV_ScaleForDpi(m_figures.captionHeightPx, KnownDpi(dpi));
    return caption;
}

CRect CQVCaptionBand::GetCloseRect(const CRect& area, UINT dpi) const {
    if (m_figures.closeBottomPx <= m_figures.closeTopPx || m_figures.captionHeightPx <= 0)
        return CRect();
    const UINT known = KnownDpi(dpi);
    return CRect(area.right - QV_ScaleForDpi(m_figures.closeLeftFromRightPx, known),
                 area.top + QV_ScaleForDpi(m_figures.closeTopPx, known),
                 area.right - QV_ScaleForDpi(m_figures.closeRightFromRightPx, known),
                 area.top + QV_ScaleForDpi(m_figures.closeBottomPx, known));
}

CRect CQVCaptionBand::GetCloseBounds(const CRect& area, UINT dpi) const {
    CRect bounds = GetCloseRect(area, dpi);
    if (!bounds.IsRectEmpty()) {
        const int line = QV_ScaleForDpi(kFrameLinePx, KnownDpi(dpi));
        bounds.InflateRect(line, line);
    }
    return bounds;
}

CRect CQVCaptionBand::GetTextRect(const CRect& area, UINT dpi) const {
    const UINT known = KnownDpi(dpi);
    CRect text = GetCaptionRect(area, dpi);
    text.left += QV_ScaleForDpi(m_figures.textInsetPx, known);
    const CRect close = GetCloseBounds(area, dpi);
    text.right = close.IsRectEmpty() ? text.right - GetFrameWidth(known)
                                     : close.left - QV_ScaleForDpi(kTextGapPx, known);
    text.right = std::max(text.left, text.right);
    return text;
}

int CQVCaptionBand::GetFrameWidth(UINT dpi) {
    return 2 * QV_ScaleForDpi(kFrameLinePx, KnownDpi(dpi));
}

QVBandPart CQVCaptionBand::HitTest(const CRect& area, CPoint point, UINT dpi) const {
    if (GetCloseRect(area, dpi).PtInRect(point))
        return QVBandPart::Close;
    return GetCaptionRect(area, dpi).PtInRect(point) ? QVBandPart::Caption : QVBandPart::None;
}

BOOL CQVCaptionBand::MouseMove(const CRect& area, CPoint point, UINT dpi) {
    const BOOL hot = HitTest(area, point, dpi) == QVBandPart::Close;
    if (hot == m_bHot)
        return FALSE;
    m_bHot = hot;
    return TRUE;
}

BOOL CQVCaptionBand::MouseLeave() {
    const BOOL changed = m_bHot || m_bPressed;
    m_bHot = m_bPressed = FALSE;
    return changed;
}

BOOL CQVCaptionBand::ButtonDown(const CRect& area, CPoint point, UINT dpi) {
    if (HitTest(area, point, dpi) != QVBandPart::Close)
        return FALSE;
    m_bHot = m_bPressed = TRUE;
    return TRUE;
}

BOOL CQVCaptionBand::ButtonUp(const CRect& area, CPoint point, UINT dpi, BOOL* clicked) {
    const BOOL over = HitTest(area, point, dpi) == QVBandPart::Close;
    const BOOL changed = m_bPressed || m_bHot != over;
    if (clicked)
        *clicked = m_bPressed && over;
    m_bPressed = FALSE;
    m_bHot = over;
    return changed;
}

QVCloseState CQVCaptionBand::GetCloseState(BOOL closable) const {
    if (!closable)
        return QVCloseState::Disabled;
    if (!m_bHot)
        return QVCloseState::Normal;
    return m_bPressed ? QVCloseState::Pressed : QVCloseState::Hot;
}

void CQVCaptionBand::PaintFrame(CDC* dc, const CRect& area, UINT dpi) {
    if (!dc)
        return;
    const int line = QV_ScaleForDpi(kFrameLinePx, KnownDpi(dpi));
    CRect inner(area);
    inner.DeflateRect(line, line);
    DrawFrameLines(dc, area, QV_GetSysColor(QVCLR_FRAME_OUTER), line);
    DrawFrameLines(dc, inner, QV_GetSysColor(QVCLR_FRAME_INNER), line);
}

void CQVCaptionBand::Paint(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi) {
    if (!dc)
        return;
    const UINT known = KnownDpi(dpi);
    if (m_figures.groundColor >= 0)
        dc->FillSolidRect(area, QV_GetSysColor(m_figures.groundColor));
    const CRect caption = GetCaptionRect(area, known);
    dc->FillSolidRect(caption, QV_GetSysColor(QVCLR_CAPTION));
    PaintFrame(dc, area, known);
    if (caption.Height() <= 0)
        return;
    const int line = QV_ScaleForDpi(kFrameLinePx, known);
    const int inset = QV_ScaleForDpi(m_figures.lineInsetPx, known);
    dc->FillSolidRect(caption.left + inset, caption.bottom - line, std::max(0, caption.Width() - 2 * inset),
                      line, QV_GetSysColor(QVCLR_CAPTION_LINE));
    if (look.showClose)
        PaintClose(dc, area, look, known);
    PaintText(dc, area, look, known);
}

void CQVCaptionBand::PaintClose(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi) {
    const CRect button = GetCloseRect(area, dpi);
    if (button.IsRectEmpty())
        return;
    const int state = static_cast<int>(GetCloseState(look.closable));
    const COLORREF color = QV_GetSysColor((look.active ? QVCLR_CLOSE_ACTIVE : QVCLR_CLOSE_INACTIVE) + state);
    const int line = QV_ScaleForDpi(kFrameLinePx, dpi);
    dc->FillSolidRect(button, color);
    const SkinPicture glyph(kCloseImage, QVIMAGE_STATES, dpi);
    const CSize size = glyph.Size();
    const int x = button.left + std::max(0, static_cast<int>(button.Width() - size.cx) / 2);
    const int y = button.top + std::max(0, static_cast<int>(button.Height() - size.cy) / 2);
    glyph.Draw(dc, state, x, y);
    DrawFrameLines(dc, button, QV_LightenColor(color), line);
    DrawFrameLines(dc, GetCloseBounds(area, dpi), QV_GetSysColor(QVCLR_FRAME_OUTER), line);
}

void CQVCaptionBand::PaintText(CDC* dc, const CRect& area, const QVCaptionLook& look, UINT dpi) const {
    const CString text(look.text ? look.text : L"");
    const auto font = static_cast<HFONT>(QV_GetSysFont(QVFONT_UI, dpi)->GetSafeHandle());
    const int color = look.active ? m_figures.textColor : m_figures.inactiveTextColor;
    DrawTextIn(dc, text, GetTextRect(area, dpi), DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX,
               font, QV_GetSysColor(color));
}

} // namespace _qv_commonctrl
