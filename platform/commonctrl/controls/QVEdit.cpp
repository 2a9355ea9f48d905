#include "QVEdit.h"

#include "ControlSupport.h"
#include "module/Guards.h"
#include "QVReplaceWnd.h"
#include "skin/SkinBrushPool.h"

#include <algorithm>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVEdit, CEdit)

namespace {

constexpr int kFrameLines = 2;
constexpr int kTextInsetPx = 3; // between the frame and the text of a single-line field
constexpr WPARAM kCharOfCtrlA = 1;

bool IsInsideCombo(HWND wnd) {
    return IsWindowOfClass(::GetParent(wnd), WC_COMBOBOXW);
}

int LineHeight(HWND wnd) {
    CClientDC dc(CWnd::FromHandle(wnd));
    const DcSelection selection(dc, WindowFontOf(wnd));
    TEXTMETRICW metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

} // namespace

CQVEdit::CQVEdit() = default;

CQVEdit::~CQVEdit() {
    if (m_hWnd)
        DestroyWindow();
}

void CQVEdit::PreSubclassWindow() {
    CEdit::PreSubclassWindow();
    AttachSkin(this);
    // A field that exists already has a text limit; one that is being created answers nothing yet and gets
    // its frame at WM_CREATE. Messages do not come here before this function has returned, so the frame waits
    // for the next one.
    if (::SendMessageW(m_hWnd, EM_GETLIMITTEXT, 0, 0) != 0) {
        NoteSkinFont(reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
        m_frameStep = FrameStep::Due;
    }
}

void CQVEdit::TakeOverFrame() {
    m_frameStep = FrameStep::Done;
    const bool bordered = (GetStyle() & WS_BORDER) || (GetExStyle() & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    m_bFramed = bordered && !IsInsideCombo(m_hWnd);
    if (m_bFramed) {
        ModifyStyle(WS_BORDER, 0);
        ModifyStyleEx(WS_EX_CLIENTEDGE | WS_EX_STATICEDGE, 0);
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    if ((GetStyle() & ES_MULTILINE) && (GetStyle() & (WS_VSCROLL | WS_HSCROLL)))
        QV_ReplaceWnd(m_hWnd);
}

bool CQVEdit::IsReadOnly() const {
    return (GetStyle() & ES_READONLY) != 0;
}

int CQVEdit::GroundColor() const {
    if (!IsWindowEnabled())
        return QVCLR_CTRL_DISABLED;
    return IsReadOnly() ? QVCLR_WINDOW : QVCLR_LIST;
}

int CQVEdit::TextColor() const {
    if (!IsWindowEnabled())
        return QVCLR_TEXT_DISABLED;
    return IsReadOnly() ? QVCLR_TEXT_LIST : QVCLR_TEXT;
}

BOOL CQVEdit::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message != WM_CTLCOLOREDIT && message != WM_CTLCOLORSTATIC)
        return CEdit::OnChildNotify(message, wParam, lParam, result);
    const auto dc = reinterpret_cast<HDC>(wParam);
    ::SetTextColor(dc, QV_GetSysColor(TextColor()));
    ::SetBkColor(dc, QV_GetSysColor(GroundColor()));
    if (result)
        *result = reinterpret_cast<LRESULT>(SkinColorBrush(GroundColor()));
    return TRUE;
}

void CQVEdit::OnNcCalc(RECT& rect) const {
    const int frame = kFrameLines * QV_ScalePx(m_hWnd, 1);
    CRect inner(rect);
    inner.DeflateRect(frame, frame);
    if (!(GetStyle() & ES_MULTILINE)) {
        const int inset = QV_ScalePx(m_hWnd, kTextInsetPx);
        const int spare = std::max(0, inner.Height() - LineHeight(m_hWnd));
        inner.DeflateRect(inset, spare / 2, inset, spare - spare / 2);
    }
    inner.right = std::max(inner.left, inner.right);
    inner.bottom = std::max(inner.top, inner.bottom);
    rect = inner;
}

void CQVEdit::PaintFrame() {
    if (!m_bFramed || !IsWindowVisible())
        return;
    CRect area;
    GetWindowRect(area);
    CRect client;
    GetClientRect(client);
    ClientToScreen(client);
    client.OffsetRect(-area.left, -area.top);
    area.MoveToXY(0, 0);
    const int line = QV_ScalePx(m_hWnd, 1);
    const bool focused = ::GetFocus() == m_hWnd;
    const bool hot = m_bHot && IsWindowEnabled();
    CWindowDC dc(this);
    DrawFrameLines(&dc, area, QV_GetSysColor(QVCLR_EDIT_FRAME_OUTER), line);
    area.DeflateRect(line, line);
    DrawFrameLines(&dc, area,
                   QV_GetSysColor(m_bRefused ? QVCLR_METER_OVER
                                  : focused  ? QVCLR_ACCENT
                                  : hot      ? QVCLR_SCROLL_THUMB_HOT
                                             : QVCLR_EDIT_FRAME_INNER),
                   line);
    if (GetStyle() & ES_MULTILINE)
        return; // between frame and text there are scroll bars at most
    area.DeflateRect(line, line);
    dc.ExcludeClipRect(client);
    dc.FillSolidRect(area, QV_GetSysColor(GroundColor()));
}

// The system draws the text of a disabled field in its own grey, whatever colour it is given.
void CQVEdit::PaintDisabled(CDC* dc, const CRect& client) const {
    dc->FillSolidRect(client, QV_GetSysColor(GroundColor()));
    const DWORD style = GetStyle();
    const auto margins = static_cast<DWORD>(::SendMessageW(m_hWnd, EM_GETMARGINS, 0, 0));
    CString text = WindowTextOf(m_hWnd);
    const auto mask = static_cast<wchar_t>(::SendMessageW(m_hWnd, EM_GETPASSWORDCHAR, 0, 0));
    if (mask)
        text = CString(mask, text.GetLength());
    UINT format = DT_NOPREFIX | DT_EDITCONTROL | DT_EXPANDTABS;
    if (style & ES_CENTER)
        format |= DT_CENTER;
    else if (style & ES_RIGHT)
        format |= DT_RIGHT;
    CRect place(client);
    place.DeflateRect(LOWORD(margins), 0, HIWORD(margins), 0);
    if (style & ES_MULTILINE) {
        ::SendMessageW(m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&place));
        const auto firstLine = static_cast<int>(::SendMessageW(m_hWnd, EM_GETFIRSTVISIBLELINE, 0, 0));
        place.top -= firstLine * LineHeight(m_hWnd);
        format |= style & ES_AUTOHSCROLL ? 0 : DT_WORDBREAK;
    } else {
        format |= DT_SINGLELINE;
    }
    DrawTextIn(dc, text, place, format, WindowFontOf(m_hWnd), QV_GetSysColor(TextColor()));
}

void CQVEdit::FollowMouse(UINT message) {
    if (message == WM_MOUSELEAVE && m_bHot) {
        m_bHot = false;
    } else if (message == WM_MOUSEMOVE && !m_bHot) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        m_bHot = ::TrackMouseEvent(&track) != FALSE;
    } else {
        return;
    }
    PaintFrame();
}

void CQVEdit::ShowRefused() {
    ::MessageBeep(MB_OK);
    m_bRefused = true;
    PaintFrame();
}

// What the user does next is no refusal any more, until the handler finds so.
void CQVEdit::EndRefusal(UINT message) {
    const bool isNext = message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONDOWN ||
                        message == WM_SETTEXT || message == WM_PASTE || message == WM_KILLFOCUS;
    if (!m_bRefused || !isNext)
        return;
    m_bRefused = false;
    PaintFrame();
}

LRESULT CQVEdit::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CHAR && wParam == kCharOfCtrlA) {
        SetSel(0, -1);
        return 0;
    }
    return CEdit::DefWindowProc(message, wParam, lParam);
}

LRESULT CQVEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_frameStep == FrameStep::Due && message != WM_DESTROY && message != WM_NCDESTROY)
        TakeOverFrame();
    FollowMouse(message);
    EndRefusal(message);
    switch (message) {
    case WM_NCCALCSIZE:
        if (m_bFramed)
            OnNcCalc(*reinterpret_cast<RECT*>(lParam)); // first member of both forms
        return CEdit::WindowProc(message, wParam, lParam);
    case WM_NCHITTEST: {
        const LRESULT hit = CEdit::WindowProc(message, wParam, lParam);
        const bool besideText = hit == HTNOWHERE || hit == HTBORDER;
        return m_bFramed && besideText && !(GetStyle() & ES_MULTILINE) ? HTCLIENT : hit;
    }
    case WM_PAINT:
    case WM_PRINTCLIENT:
        if (IsWindowEnabled())
            return CEdit::WindowProc(message, wParam, lParam);
        PaintBuffered(m_hWnd, wParam, [this](CDC* dc, const CRect& client) { PaintDisabled(dc, client); });
        return 0;
    case WM_SETFONT:
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
        break;
    default:
        break;
    }
    const LRESULT result = CEdit::WindowProc(message, wParam, lParam);
    if (m_hWnd)
        AfterMessage(message, result);
    return result;
}

void CQVEdit::AfterMessage(UINT message, LRESULT result) {
    switch (message) {
    case WM_CREATE:
        if (result != -1) // anything else is success; the system's field answers 1
            TakeOverFrame();
        break;
    case WM_SETFONT:
        if (m_bFramed)
            SetWindowPos(nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        break;
    case EM_SETREADONLY:
    case WM_ENABLE:
        Invalidate();
        PaintFrame();
        break;
    case WM_SETTEXT:
        if (!IsWindowEnabled())
            Invalidate();
        break;
    case WM_NCPAINT:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        PaintFrame();
        break;
    default:
        break;
    }
}

} // namespace _qv_commonctrl
