// The chooser's frame: size, picture and mouse.
#include "PathBrowseLayout.h"
#include "QVPathBrowseWnd.h"

#include <QVMemoDC.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

constexpr COLORREF kTransparent = RGB(0xFF, 0x00, 0xFF);
constexpr int kTreeFramePx = 1; // at 96 DPI

void FrameRect(CDC& dc, const CRect& rect, COLORREF color, int width) {
    dc.FillSolidRect(rect.left, rect.top, rect.Width(), width, color);
    dc.FillSolidRect(rect.left, rect.bottom - width, rect.Width(), width, color);
    dc.FillSolidRect(rect.left, rect.top, width, rect.Height(), color);
    dc.FillSolidRect(rect.right - width, rect.top, width, rect.Height(), color);
}

} // namespace

BEGIN_MESSAGE_MAP(CQVPathBrowseWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_ACTIVATE()
    ON_WM_ENABLE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// The system's own arrangement comes first, ours has the last word.
void CQVPathBrowseWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type == SIZE_MINIMIZED)
        return;
    CRect window;
    GetWindowRect(&window);
    const CSize size = PathBrowseSize(Dpi());
    if (window.Size() != size)
        SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

BOOL CQVPathBrowseWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CQVPathBrowseWnd::OnPaint() {
    CPaintDC paint(this);
    const CRect client = Client();
    const UINT dpi = Dpi();
    CString text;
    GetWindowText(text);
    CQVMemoDC dc(&paint, client);
    m_band.SetMouse(m_bCloseHot != 0, ::GetKeyState(VK_LBUTTON) < 0);
    m_band.Paint(&dc, client, {text, ::GetActiveWindow() == m_hWnd, IsWindowEnabled(), TRUE}, dpi);
    if (m_hTreeHost) {
        CRect tree;
        ::GetWindowRect(m_hTreeHost, &tree);
        ScreenToClient(&tree);
        const int line = QV_ScaleForDpi(kTreeFramePx, dpi);
        tree.InflateRect(line, line);
        FrameRect(dc, tree, QV_GetSysColor(QVCLR_TREE_FRAME), line);
    }
    dc.CopyTransparent(kTransparent);
}

HBRUSH CQVPathBrowseWnd::OnCtlColor(CDC* dc, CWnd*, UINT) {
    if (dc) {
        dc->SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
        dc->SetBkColor(QV_GetSysColor(QVCLR_WINDOW));
    }
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

void CQVPathBrowseWnd::OnActivate(UINT state, CWnd* other, BOOL minimized) {
    CWnd::OnActivate(state, other, minimized);
    InvalidateCaption();
}

void CQVPathBrowseWnd::OnEnable(BOOL enable) {
    CWnd::OnEnable(enable);
    InvalidateCaption();
}

void CQVPathBrowseWnd::InvalidateCaption() {
    InvalidateRect(m_band.GetCaptionRect(Client(), Dpi()), FALSE);
}

void CQVPathBrowseWnd::InvalidateClose() {
    InvalidateRect(m_band.GetCloseBounds(Client(), Dpi()), FALSE);
}

void CQVPathBrowseWnd::SetCloseHot(bool hot) {
    if (hot == (m_bCloseHot != 0))
        return;
    m_bCloseHot = hot;
    InvalidateClose();
}

void CQVPathBrowseWnd::OnLButtonDown(UINT flags, CPoint point) {
    switch (m_band.HitTest(Client(), point, Dpi())) {
    case QVBandPart::Close:
        SetCloseHot(true);
        InvalidateClose();
        break;
    case QVBandPart::Caption: {
        CPoint screen(point);
        ClientToScreen(&screen);
        SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(screen.x, screen.y));
        break;
    }
    case QVBandPart::None:
        CWnd::OnLButtonDown(flags, point);
        break;
    }
}

void CQVPathBrowseWnd::OnLButtonUp(UINT flags, CPoint point) {
    if (m_band.HitTest(Client(), point, Dpi()) != QVBandPart::Close) {
        CWnd::OnLButtonUp(flags, point);
        return;
    }
    InvalidateClose();
    SendMessage(WM_SYSCOMMAND, SC_CLOSE, 0);
}

void CQVPathBrowseWnd::OnMouseMove(UINT flags, CPoint point) {
    SetCloseHot(m_band.HitTest(Client(), point, Dpi()) == QVBandPart::Close);
    if (m_bCloseHot) { // a fast mouse leaves the window without another move in it
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    CWnd::OnMouseMove(flags, point);
}

void CQVPathBrowseWnd::OnMouseLeave() {
    SetCloseHot(false);
    CWnd::OnMouseLeave();
}

} // namespace _qv_commonwnd
