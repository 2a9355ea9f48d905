#include "NonClientFrame.h"

#include "controls/ControlSupport.h"

namespace _qv_commonctrl {

namespace {

constexpr int kSizingEdgePx = 5;    // how far inside the window its edges can be grasped
constexpr int kSizingCornerPx = 14; // the same along an edge near a corner
constexpr WPARAM kSystemCommandMask = 0xFFF0;

constexpr DWORD kFrameStyles = WS_CAPTION;
constexpr DWORD kFrameExStyles = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE | WS_EX_STATICEDGE;

} // namespace

NonClientFrame::Kind NonClientFrame::KindOf(DWORD style) {
    if (style & WS_CHILD)
        return style & (WS_BORDER | WS_DLGFRAME | WS_THICKFRAME) ? Kind::FrameOnly : Kind::None;
    return (style & WS_CAPTION) == WS_CAPTION ? Kind::Caption : Kind::FrameOnly;
}

void NonClientFrame::Attach(HWND wnd) {
    if (m_wnd == wnd || !::IsWindow(wnd))
        return;
    CRect client;
    ::GetClientRect(wnd, client);
    const DWORD style = WindowStyle(wnd);
    const auto exStyle = static_cast<DWORD>(::GetWindowLongPtrW(wnd, GWL_EXSTYLE));
    m_wnd = wnd;
    m_kind = KindOf(style);
    m_active = ::GetActiveWindow() == wnd;
    ::SetWindowLongPtrW(wnd, GWL_STYLE, static_cast<LONG_PTR>(style & ~kFrameStyles));
    ::SetWindowLongPtrW(wnd, GWL_EXSTYLE, static_cast<LONG_PTR>(exStyle & ~kFrameExStyles));
    FitToClient(client.Size());
}

void NonClientFrame::Detach() {
    StopFollowing();
    m_wnd = nullptr;
    m_children.Clear();
    m_band.MouseLeave();
}

void NonClientFrame::FitToClient(CSize client) const {
    const CRect edges = Edges();
    ::SetWindowPos(m_wnd, nullptr, 0, 0, client.cx + edges.left + edges.right,
                   client.cy + edges.top + edges.bottom,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
}

CRect NonClientFrame::Edges() const {
    if (!m_wnd || m_kind == Kind::None)
        return CRect();
    const UINT dpi = Dpi();
    const int line = CQVCaptionBand::GetFrameWidth(dpi);
    const int top = m_kind == Kind::Caption ? m_band.GetCaptionRect(CRect(), dpi).Height() : line;
    return CRect(line, top, line, line);
}

void NonClientFrame::SetAutoSize(bool enable, HWND host) {
    m_autoSize = enable;
    StopFollowing();
    if (host && host != m_wnd &&
        ::SetWindowSubclass(host, &NonClientFrame::FollowProc, FollowId(), reinterpret_cast<DWORD_PTR>(this)))
        m_anchorHost = host;
}

void NonClientFrame::StopFollowing() {
    if (m_anchorHost)
        ::RemoveWindowSubclass(m_anchorHost, &NonClientFrame::FollowProc, FollowId());
    m_anchorHost = nullptr;
}

LRESULT CALLBACK NonClientFrame::FollowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                            DWORD_PTR self) {
    auto* frame = reinterpret_cast<NonClientFrame*>(self);
    if (message == WM_NCDESTROY)
        frame->StopFollowing();
    else if (message == WM_SIZE && frame->m_autoSize && wParam != SIZE_MINIMIZED)
        frame->m_children.Layout(wnd);
    return ::DefSubclassProc(wnd, message, wParam, lParam);
}

void NonClientFrame::RegisterChild(HWND child, int mode, DWORD flags) {
    m_children.Register(AnchorHost(), child, mode, flags);
}

CRect NonClientFrame::WindowArea() const {
    CRect area;
    ::GetWindowRect(m_wnd, area);
    area.MoveToXY(0, 0);
    return area;
}

CPoint NonClientFrame::ToWindow(CPoint screen) const {
    CRect window;
    ::GetWindowRect(m_wnd, window);
    return CPoint(screen.x - window.left, screen.y - window.top);
}

bool NonClientFrame::HasCloseButton() const {
    return m_kind == Kind::Caption && (WindowStyle(m_wnd) & WS_SYSMENU);
}

bool NonClientFrame::IsClosable() const {
    if (!::IsWindowEnabled(m_wnd) || (::GetClassLongPtrW(m_wnd, GCL_STYLE) & CS_NOCLOSE))
        return false;
    const HMENU menu = ::GetSystemMenu(m_wnd, FALSE);
    if (!menu)
        return true;
    const UINT state = ::GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND);
    return state != static_cast<UINT>(-1) && !(state & (MF_GRAYED | MF_DISABLED));
}

bool NonClientFrame::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (!m_wnd)
        return false;
    switch (message) {
    case WM_NCCALCSIZE: {
        const CRect edges = Edges();
        RECT& rect = *reinterpret_cast<RECT*>(lParam); // first member of both forms
        rect = {rect.left + edges.left, rect.top + edges.top, rect.right - edges.right,
                rect.bottom - edges.bottom};
        result = 0;
        return true;
    }
    case WM_NCPAINT:
        Paint(PaintPart::All);
        result = 0;
        return true;
    case WM_NCACTIVATE:
        m_active = wParam != FALSE;
        ::DefWindowProcW(m_wnd, message, wParam, -1); // -1: without painting
        Paint(PaintPart::All);
        result = TRUE;
        return true;
    case WM_ACTIVATE:
        // The last word: a window activated before its program comes to the foreground may have been told
        // otherwise.
        if (m_active != (LOWORD(wParam) != WA_INACTIVE)) {
            m_active = !m_active;
            Paint(PaintPart::All);
        }
        return false;
    case WM_SETTEXT:
        result = ::DefWindowProcW(m_wnd, message, wParam, lParam);
        Paint(PaintPart::All);
        return true;
    case WM_SYSCOMMAND:
        result = 0;
        return (wParam & kSystemCommandMask) == SC_CLOSE && !IsClosable();
    case WM_SIZE:
        if (m_autoSize && !m_anchorHost && wParam != SIZE_MINIMIZED)
            m_children.Layout(m_wnd);
        return false;
    case WM_ENABLE:
        PaintCloseIf(TRUE);
        return false;
    default:
        return HandleMouse(message, wParam, lParam, result);
    }
}

bool NonClientFrame::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
    case WM_NCHITTEST:
        return HitTest(CPoint(lParam), result);
    case WM_NCMOUSEMOVE:
        PaintCloseIf(m_band.MouseMove(WindowArea(), ToWindow(CPoint(lParam)), Dpi()) ||
                     m_paintedClosable != IsClosable());
        TrackLeave();
        return false;
    case WM_NCMOUSELEAVE:
        PaintCloseIf(m_band.MouseLeave());
        return false;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam == HTCAPTION) // without a maximise box a double click does what a single one does: nothing
            return message == WM_NCLBUTTONDBLCLK && !(WindowStyle(m_wnd) & WS_MAXIMIZEBOX);
        return OnNcButtonDown(wParam, lParam);
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        return OnCapturedMouse(message, lParam);
    case WM_CAPTURECHANGED:
        if (m_band.IsPressed())
            PaintCloseIf(m_band.MouseLeave());
        return false;
    default:
        return false;
    }
}

bool NonClientFrame::OnNcButtonDown(WPARAM hitCode, LPARAM screenPoint) {
    if (hitCode != HTCLOSE)
        return false;
    if (IsClosable() && m_band.ButtonDown(WindowArea(), ToWindow(CPoint(screenPoint)), Dpi())) {
        ::SetCapture(m_wnd);
        PaintCloseIf(TRUE);
    }
    return true;
}

bool NonClientFrame::OnCapturedMouse(UINT message, LPARAM clientPoint) {
    if (!m_band.IsPressed()) {
        PaintCloseIf(m_band.MouseLeave()); // the pointer has come from the caption into the client area
        return false;
    }
    CPoint screen(clientPoint);
    ::ClientToScreen(m_wnd, &screen);
    const CPoint point = ToWindow(screen);
    if (message == WM_MOUSEMOVE) {
        PaintCloseIf(m_band.MouseMove(WindowArea(), point, Dpi()));
        return true;
    }
    BOOL clicked = FALSE;
    const BOOL changed = m_band.ButtonUp(WindowArea(), point, Dpi(), &clicked);
    ::ReleaseCapture();
    PaintCloseIf(changed);
    if (clicked)
        ::PostMessageW(m_wnd, WM_SYSCOMMAND, SC_CLOSE, MAKELPARAM(screen.x, screen.y));
    return true;
}

bool NonClientFrame::HitTest(CPoint screen, LRESULT& result) const {
    const CPoint point = ToWindow(screen);
    const CRect area = WindowArea();
    if (m_kind == Kind::None || !area.PtInRect(point))
        return false;
    result = SizingHit(point);
    if (result != HTNOWHERE)
        return true;
    const QVBandPart part = m_kind == Kind::Caption ? m_band.HitTest(area, point, Dpi()) : QVBandPart::None;
    if (part == QVBandPart::Close && HasCloseButton()) {
        result = HTCLOSE;
        return true;
    }
    if (part != QVBandPart::None) {
        result = HTCAPTION;
        return true;
    }
    const CRect edges = Edges();
    CRect client(area);
    client.DeflateRect(edges.left, edges.top, edges.right, edges.bottom);
    result = HTBORDER;
    return !client.PtInRect(point);
}

LRESULT NonClientFrame::SizingHit(CPoint point) const {
    const DWORD style = WindowStyle(m_wnd);
    if (!(style & WS_THICKFRAME) || (style & WS_MAXIMIZE))
        return HTNOWHERE;
    const UINT dpi = Dpi();
    const int edge = QV_ScaleForDpi(kSizingEdgePx, dpi);
    const int corner = QV_ScaleForDpi(kSizingCornerPx, dpi);
    const CRect area = WindowArea();
    const bool onEdge =
        point.x < edge || point.y < edge || point.x >= area.right - edge || point.y >= area.bottom - edge;
    if (!onEdge)
        return HTNOWHERE;
    const int column = point.x < corner ? 0 : point.x >= area.right - corner ? 2 : 1;
    const int row = point.y < corner ? 0 : point.y >= area.bottom - corner ? 2 : 1;
    static constexpr LRESULT codes[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                            {HTLEFT, HTNOWHERE, HTRIGHT},
                                            {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
    return codes[row][column];
}

void NonClientFrame::TrackLeave() const {
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE | TME_NONCLIENT, m_wnd, 0};
    ::TrackMouseEvent(&track);
}

void NonClientFrame::PaintCloseIf(BOOL changed) {
    if (changed && HasCloseButton())
        Paint(PaintPart::CloseButton);
}

void NonClientFrame::Paint(PaintPart part) {
    if (m_kind == Kind::None || !::IsWindowVisible(m_wnd) || ::IsIconic(m_wnd))
        return;
    const UINT dpi = Dpi();
    const CRect area = WindowArea();
    const CRect edges = Edges();
    CWindowDC dc(CWnd::FromHandle(m_wnd));
    if (m_kind == Kind::Caption) {
        const CRect strip =
            part == PaintPart::All ? CRect(0, 0, area.right, edges.top) : m_band.GetCloseBounds(area, dpi);
        const CString text = WindowTextOf(m_wnd);
        m_paintedClosable = IsClosable();
        CQVMemoDC picture(&dc, strip);
        m_band.Paint(&picture, area, {text, m_active, m_paintedClosable, HasCloseButton()}, dpi);
    }
    if (part == PaintPart::CloseButton)
        return;
    dc.ExcludeClipRect(0, m_kind == Kind::Caption ? 0 : edges.top, area.right, edges.top);
    dc.ExcludeClipRect(edges.left, edges.top, area.right - edges.right, area.bottom - edges.bottom);
    CQVCaptionBand::PaintFrame(&dc, area, dpi);
}

} // namespace _qv_commonctrl
