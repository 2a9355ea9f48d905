#include "QVStatic.h"

#include "ControlSupport.h"
#include "NativePaintPause.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVStatic, CStatic)

namespace {

enum class Kind { Text, Rectangle, Frame, LineAcross, LineDown, Native };

Kind KindOf(DWORD style) {
    switch (style & SS_TYPEMASK) {
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
        return Kind::Text;
    case SS_BLACKRECT:
    case SS_GRAYRECT:
    case SS_WHITERECT:
        return Kind::Rectangle;
    case SS_BLACKFRAME:
    case SS_GRAYFRAME:
    case SS_WHITEFRAME:
    case SS_ETCHEDFRAME:
        return Kind::Frame;
    case SS_ETCHEDHORZ:
        return Kind::LineAcross;
    case SS_ETCHEDVERT:
        return Kind::LineDown;
    default:
        return Kind::Native; // icons, bitmaps, owner-drawn ones
    }
}

bool IsLine(DWORD style) {
    const Kind kind = KindOf(style);
    return kind == Kind::LineAcross || kind == Kind::LineDown;
}

int RectangleColor(DWORD style) {
    switch (style & SS_TYPEMASK) {
    case SS_BLACKRECT:
        return QVCLR_FRAME_OUTER;
    case SS_GRAYRECT:
        return QVCLR_CTRL_NORMAL;
    default:
        return QVCLR_LIST;
    }
}

UINT EllipsisFormat(DWORD style) {
    switch (style & SS_ELLIPSISMASK) {
    case SS_ENDELLIPSIS:
        return DT_END_ELLIPSIS | DT_SINGLELINE;
    case SS_PATHELLIPSIS:
        return DT_PATH_ELLIPSIS | DT_SINGLELINE;
    case SS_WORDELLIPSIS:
        return DT_WORD_ELLIPSIS | DT_SINGLELINE;
    default:
        return 0;
    }
}

UINT TextFormat(DWORD style) {
    UINT format = 0;
    switch (style & SS_TYPEMASK) {
    case SS_CENTER:
        format = DT_CENTER | DT_WORDBREAK | DT_EXPANDTABS;
        break;
    case SS_RIGHT:
        format = DT_RIGHT | DT_WORDBREAK | DT_EXPANDTABS;
        break;
    case SS_SIMPLE:
        format = DT_SINGLELINE;
        break;
    case SS_LEFTNOWORDWRAP:
        format = DT_EXPANDTABS;
        break;
    default:
        format = DT_WORDBREAK | DT_EXPANDTABS;
        break;
    }
    format |= EllipsisFormat(style);
    if (style & SS_NOPREFIX)
        format |= DT_NOPREFIX;
    if (style & SS_EDITCONTROL)
        format |= DT_EDITCONTROL;
    if (style & SS_CENTERIMAGE)
        format |= DT_SINGLELINE | DT_VCENTER;
    if (format & DT_SINGLELINE)
        format &= ~static_cast<UINT>(DT_WORDBREAK);
    return format;
}

} // namespace

CQVStatic::CQVStatic() = default;

CQVStatic::~CQVStatic() = default;

void CQVStatic::PreSubclassWindow() {
    CStatic::PreSubclassWindow();
    AttachSkinAndFont(this);
}

void CQVStatic::SetTextStyle(int) {
}

void CQVStatic::SetBkColorIndex(int colorIndex) {
    m_nBkColorIndex = colorIndex;
    Invalidate(FALSE);
}

void CQVStatic::SetTextColorIndex(int colorIndex) {
    m_nTextColorIndex = colorIndex;
    Invalidate(FALSE);
}

void CQVStatic::Paint(CDC* dc, const CRect& client) const {
    const DWORD style = GetStyle();
    const Kind kind = KindOf(style);
    if (kind == Kind::Rectangle) {
        dc->FillSolidRect(client, QV_GetSysColor(RectangleColor(style)));
        return;
    }
    if (m_nBkColorIndex >= 0)
        dc->FillSolidRect(client, QV_GetSysColor(m_nBkColorIndex));
    else
        FillParentGround(dc, m_hWnd, WM_CTLCOLORSTATIC, client);
    const COLORREF lineColor = QV_GetSysColor(QVCLR_CAPTION_LINE);
    const int line = QV_ScalePx(m_hWnd, 1);
    if (kind == Kind::Frame)
        DrawFrameLines(dc, client, lineColor, line);
    else if (kind == Kind::LineAcross)
        dc->FillSolidRect(client.left, client.top, client.Width(), line, lineColor);
    else if (kind == Kind::LineDown)
        dc->FillSolidRect(client.left, client.top, line, client.Height(), lineColor);
    else
        PaintText(dc, client);
}

void CQVStatic::PaintText(CDC* dc, const CRect& client) const {
    int color = m_nTextColorIndex >= 0 ? m_nTextColorIndex : static_cast<int>(QVCLR_TEXT_WINDOW);
    if (!IsWindowEnabled())
        color = QVCLR_TEXT_DISABLED;
    UINT format = TextFormat(GetStyle());
    if (!(format & DT_NOPREFIX))
        format |= PrefixFormat(m_hWnd);
    DrawTextIn(dc, WindowTextOf(m_hWnd), client, format, WindowFontOf(m_hWnd), QV_GetSysColor(color));
}

LRESULT CQVStatic::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    if (!m_hWnd || KindOf(GetStyle()) == Kind::Native)
        return CStatic::WindowProc(message, wParam, lParam);
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
    case WM_PRINTCLIENT:
        PaintBuffered(m_hWnd, wParam, [this](CDC* dc, const CRect& client) { Paint(dc, client); });
        return 0;
    case WM_NCCALCSIZE:
        if (IsLine(GetStyle()))
            return 0; // the system makes a line of the sunken edges around nothing
        return CStatic::WindowProc(message, wParam, lParam);
    case WM_NCPAINT: {
        if (IsLine(GetStyle()))
            return 0;
        const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
        PaintBorder(m_hWnd, QVCLR_CAPTION_LINE, QVCLR_CAPTION_LINE);
        return result;
    }
    case WM_SETTEXT:
    case WM_SETFONT:
    case WM_ENABLE: {
        NativePaintPause pause(m_hWnd); // the system's static draws at these at once
        return CStatic::WindowProc(message, wParam, lParam);
    }
    default:
        return CStatic::WindowProc(message, wParam, lParam);
    }
}

} // namespace _qv_commonctrl
