#include "QVWndEx.h"

#include "FileDialogIds.h"

#include <QVMemoDC.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr COLORREF kTransparentKey = RGB(0xFF, 0x00, 0xFF);

QVCaptionFigures FrameFigures() {
    QVCaptionFigures figures;
    figures.captionHeightPx = 21;
    figures.closeLeftFromRightPx = 27;
    figures.closeRightFromRightPx = 6;
    figures.closeTopPx = 1;
    figures.closeBottomPx = 17;
    figures.textInsetPx = 5;
    figures.lineInsetPx = 2;
    figures.textColor = QVCLR_TEXT_WINDOW;
    figures.inactiveTextColor = QVCLR_TEXT_WINDOW;
    figures.groundColor = QVCLR_WINDOW;
    return figures;
}

} // namespace

IMPLEMENT_DYNAMIC(CQVWndEx, CWnd)

BEGIN_MESSAGE_MAP(CQVWndEx, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_NCACTIVATE()
    ON_WM_ENABLE()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_DESTROY()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
END_MESSAGE_MAP()

CQVWndEx::CQVWndEx() : m_band(FrameFigures()) {
}

CQVWndEx::~CQVWndEx() = default;

void CQVWndEx::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    m_band.MouseLeave(); // the object may have worn a frame before
    AttachSkin(this);
}

void CQVWndEx::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

CRect CQVWndEx::Area() const {
    CRect area;
    GetClientRect(&area);
    return area;
}

UINT CQVWndEx::Dpi() const {
    return QV_GetWindowDpi(GetSafeHwnd());
}

void CQVWndEx::RepaintClose() {
    InvalidateRect(m_band.GetCloseBounds(Area(), Dpi()), FALSE);
}

void CQVWndEx::RepaintCaption() {
    InvalidateRect(m_band.GetCaptionRect(Area(), Dpi()), FALSE);
}

// The system's dialog sets the heights of its own list anew each time it drops down.
LRESULT CQVWndEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    if (message == WM_COMMAND && LOWORD(wParam) == kFileTypeComboId && HIWORD(wParam) == CBN_DROPDOWN)
        SetComboHeights(reinterpret_cast<HWND>(lParam));
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && m_newViewAction &&
        IsShellView(reinterpret_cast<HWND>(lParam)))
        m_newViewAction(reinterpret_cast<HWND>(lParam));
    return result;
}

void CQVWndEx::OnPaint() {
    CPaintDC paint(this);
    const CRect area = Area();
    CQVMemoDC memory(&paint, area);
    CString text;
    GetWindowText(text);
    QVCaptionLook look;
    look.text = text;
    look.active = ::GetActiveWindow() == m_hWnd;
    look.closable = IsWindowEnabled();
    m_band.Paint(&memory, area, look, Dpi());
    memory.CopyTransparent(kTransparentKey);
}

BOOL CQVWndEx::OnEraseBkgnd(CDC*) {
    return TRUE;
}

HBRUSH CQVWndEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    if (!pDC) // whatever a dialog would answer is replaced, so it is not asked otherwise
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
    return QV_GetSysBrush(QVBRUSH_CHILD);
}

BOOL CQVWndEx::OnNcActivate(BOOL bActive) {
    const BOOL answer = CWnd::OnNcActivate(bActive);
    RepaintCaption();
    return answer;
}

void CQVWndEx::OnEnable(BOOL bEnable) {
    CWnd::OnEnable(bEnable);
    RepaintClose();
}

// The frame's lines run along edges that have moved; what stood there shows them still.
void CQVWndEx::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate(FALSE);
}

void CQVWndEx::OnMouseMove(UINT nFlags, CPoint point) {
    if (m_band.MouseMove(Area(), point, Dpi()))
        RepaintClose();
    if (m_band.IsHot()) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    CWnd::OnMouseMove(nFlags, point);
}

void CQVWndEx::OnMouseLeave() {
    if (!m_band.IsPressed() && m_band.MouseLeave())
        RepaintClose();
    CWnd::OnMouseLeave();
}

void CQVWndEx::OnLButtonDown(UINT nFlags, CPoint point) {
    if (m_band.ButtonDown(Area(), point, Dpi())) {
        SetCapture();
        RepaintClose();
        return;
    }
    if (m_band.HitTest(Area(), point, Dpi()) == QVBandPart::Caption) {
        CPoint screen(point);
        ClientToScreen(&screen);
        SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(screen.x, screen.y));
        return;
    }
    CWnd::OnLButtonDown(nFlags, point);
}

void CQVWndEx::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!m_band.IsPressed()) {
        CWnd::OnLButtonUp(nFlags, point);
        return;
    }
    BOOL clicked = FALSE;
    m_band.ButtonUp(Area(), point, Dpi(), &clicked);
    RepaintClose();
    ::ReleaseCapture();
    if (clicked) {
        CPoint screen(point);
        ClientToScreen(&screen);
        SendMessage(WM_SYSCOMMAND, SC_CLOSE, MAKELPARAM(screen.x, screen.y));
    }
}

void CQVWndEx::OnCaptureChanged(CWnd* pWnd) {
    if (m_band.IsPressed() && m_band.MouseLeave())
        RepaintClose();
    CWnd::OnCaptureChanged(pWnd);
}

void CQVWndEx::OnDestroy() {
    if (m_endAction)
        m_endAction();
    CWnd::OnDestroy();
}

// What the system's owner-drawn controls ask belongs to the system's dialog, whose data it is about; the skinned
// controls draw without asking.
void CQVWndEx::OnDrawItem(int, LPDRAWITEMSTRUCT) {
    Default();
}

void CQVWndEx::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    Default();
}

void CQVWndEx::OnDeleteItem(int, LPDELETEITEMSTRUCT) {
    Default();
}

int CQVWndEx::OnCompareItem(int, LPCOMPAREITEMSTRUCT) {
    return static_cast<int>(Default());
}

} // namespace _qv_commonwnd
