// The members of device contexts and menus that deal with windows.
#include "afxwin.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

HWND WindowHandle(const CWnd* pWnd) {
    return pWnd ? pWnd->m_hWnd : nullptr;
}

// A window object that has lost its window must not paint on the screen instead.
HDC GetChecked(const CWnd* pWnd, HDC(WINAPI* get)(HWND)) {
    HDC const dc = pWnd && !pWnd->m_hWnd ? nullptr : get(WindowHandle(pWnd));
    if (!dc)
        AfxThrowResourceException();
    return dc;
}

} // namespace

// A window with a DC of its own gives the same handle twice: the second object works without being in the
// table.
void CDC::AttachWindowDC(HDC hDC) {
    if (!Attach(hDC))
        m_hDC = m_hAttribDC = hDC;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(WindowHandle(pWnd)) {
    AttachWindowDC(GetChecked(pWnd, ::GetDC));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(WindowHandle(pWnd)) {
    AttachWindowDC(GetChecked(pWnd, ::GetWindowDC));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(WindowHandle(pWnd)) {
    if (!m_hWnd || !::BeginPaint(m_hWnd, &m_ps))
        AfxThrowResourceException();
    AttachWindowDC(m_ps.hdc);
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, WindowHandle(pWnd));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    HWND const owner = WindowHandle(pWnd);
    return owner ? ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, owner, lpRect) : FALSE;
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    HWND const owner = WindowHandle(pWnd);
    return owner ? ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, owner, lptpm) : FALSE;
}
