#include "SystemDialogFrame.h"

#include <QVMemoDC.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr COLORREF kTransparentKey = RGB(0xFF, 0x00, 0xFF);

constexpr DWORD kFrameStyles = WS_CAPTION | WS_SYSMENU | WS_CLIPSIBLINGS | DS_3DLOOK | DS_MODALFRAME;
constexpr DWORD kFrameExStyles = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;

} // namespace

BEGIN_MESSAGE_MAP(CSystemDialogFrame, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCACTIVATE()
    ON_WM_ENABLE()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CSystemDialogFrame::CSystemDialogFrame(const QVCaptionFigures& figures) : m_band(figures) {
}

void CSystemDialogFrame::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    m_band.MouseLeave(); // the object may have worn a dialog before
    AttachSkin(this);
}

void CSystemDialogFrame::StripFrame(DWORD further) {
    ModifyStyleEx(kFrameExStyles, 0);
    ModifyStyle(kFrameStyles | further, 0);
}

void CSystemDialogFrame::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

CRect CSystemDialogFrame::Client() const {
    CRect client;
    GetClientRect(&client);
    return client;
}

UINT CSystemDialogFrame::Dpi() const {
    return QV_GetWindowDpi(GetSafeHwnd());
}

void CSystemDialogFrame::RepaintClose() {
    InvalidateRect(m_band.GetCloseBounds(Client(), Dpi()), FALSE);
}

void CSystemDialogFrame::RepaintCaption() {
    InvalidateRect(m_band.GetCaptionRect(Client(), Dpi()), FALSE);
}

void CSystemDialogFrame::OnPaint() {
    CPaintDC paint(this);
    const CRect client = Client();
    CQVMemoDC memory(&paint, client);
    CString text;
    GetWindowText(text);
    QVCaptionLook look;
    look.text = text;
    look.active = ::GetActiveWindow() == m_hWnd;
    look.closable = IsWindowEnabled();
    m_band.Paint(&memory, client, look, Dpi());
    PaintMore(memory);
    memory.CopyTransparent(kTransparentKey);
}

void CSystemDialogFrame::PaintMore(CDC&) {
}

BOOL CSystemDialogFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

BOOL CSystemDialogFrame::OnNcActivate(BOOL bActive) {
    const BOOL answer = CWnd::OnNcActivate(bActive);
    RepaintCaption();
    return answer;
}

void CSystemDialogFrame::OnEnable(BOOL bEnable) {
    CWnd::OnEnable(bEnable);
    RepaintClose();
}

// Nothing is seen before it is painted: what is shown and waits for its first painting is black.
void CSystemDialogFrame::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    CWnd::OnWindowPosChanged(lpwndpos);
    if (lpwndpos->flags & SWP_SHOWWINDOW)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// The frame's lines run along edges that have moved; what stood there shows them still.
void CSystemDialogFrame::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate(FALSE);
}

void CSystemDialogFrame::OnMouseMove(UINT nFlags, CPoint point) {
    if (m_band.MouseMove(Client(), point, Dpi()))
        RepaintClose();
    if (m_band.IsHot()) { // a fast mouse leaves the window without another move in it
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    CWnd::OnMouseMove(nFlags, point);
}

void CSystemDialogFrame::OnMouseLeave() {
    if (!m_band.IsPressed() && m_band.MouseLeave())
        RepaintClose();
    CWnd::OnMouseLeave();
}

// Sends what the system says of a mouse outside the client area.
void CSystemDialogFrame::SendFromPoint(UINT message, WPARAM wParam, CPoint point) {
    ClientToScreen(&point);
    SendMessage(message, wParam, MAKELPARAM(point.x, point.y));
}

void CSystemDialogFrame::OnLButtonDown(UINT nFlags, CPoint point) {
    if (m_band.ButtonDown(Client(), point, Dpi())) {
        SetCapture();
        RepaintClose();
    } else if (m_band.HitTest(Client(), point, Dpi()) == QVBandPart::Caption) {
        SendFromPoint(WM_NCLBUTTONDOWN, HTCAPTION, point);
    } else {
        CWnd::OnLButtonDown(nFlags, point);
    }
}

// The second of two quick presses, whatever became of the first.
void CSystemDialogFrame::OnLButtonDblClk(UINT nFlags, CPoint point) {
    OnLButtonDown(nFlags, point);
}

// Only a press that began on the button closes: a dialog may come up under a mouse button that is still held.
void CSystemDialogFrame::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!m_band.IsPressed()) {
        CWnd::OnLButtonUp(nFlags, point);
        return;
    }
    BOOL clicked = FALSE;
    m_band.ButtonUp(Client(), point, Dpi(), &clicked);
    RepaintClose();
    ::ReleaseCapture();
    if (clicked)
        SendFromPoint(WM_SYSCOMMAND, SC_CLOSE, point);
}

void CSystemDialogFrame::OnCaptureChanged(CWnd* pWnd) {
    if (m_band.IsPressed() && m_band.MouseLeave())
        RepaintClose();
    CWnd::OnCaptureChanged(pWnd);
}

} // namespace _qv_commonwnd
