// CWnd: text, styles, places, relatives and painting.
#include "ThreadState.h"
#include "afxapp_.h"

#include <algorithm>

namespace {

BOOL ChangeStyle(HWND hWnd, int index, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    if (!hWnd)
        return FALSE;
    const auto before = static_cast<DWORD>(::GetWindowLongPtrW(hWnd, index));
    const DWORD after = (before & ~dwRemove) | dwAdd;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtrW(hWnd, index, static_cast<LONG_PTR>(after));
    if (nFlags)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

HWND HandleOf(const CWnd* pWnd) {
    return pWnd ? pWnd->m_hWnd : nullptr;
}

CString TextOf(HWND hWnd) {
    CString text;
    const int length = ::GetWindowTextLengthW(hWnd);
    if (length <= 0)
        return text;
    const int stored = ::GetWindowTextW(hWnd, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer(stored);
    return text;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    if (!lpszStringBuf || nMaxCount <= 0)
        return 0;
    *lpszStringBuf = L'\0';
    return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const {
    rString = TextOf(m_hWnd);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    if (lpStr && nMaxCount > 0)
        *lpStr = L'\0';
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString = TextOf(::GetDlgItem(m_hWnd, nID));
    return rString.GetLength();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont ? pFont->m_hObject : nullptr;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), MAKELPARAM(bRedraw, 0));
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, static_cast<WPARAM>(bBigIcon), reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, static_cast<WPARAM>(bBigIcon)));
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    if (lpRect)
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    if (!lpwndpl)
        return FALSE;
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    if (!m_hWnd)
        return;
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND over = HandleOf(pAlternateOwner);
    if (!over)
        over = isChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    if (over && !isChild && (!::IsWindowVisible(over) || ::IsIconic(over)))
        over = nullptr;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(over ? over : m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    CRect bounds(monitor.rcWork);
    CRect target(bounds);
    if (isChild) {
        ::GetClientRect(::GetParent(m_hWnd), &bounds);
        ::GetClientRect(over, &target);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&target), 2);
    } else if (over) {
        ::GetWindowRect(over, &target);
    }
    CRect own;
    GetWindowRect(&own);
    const int x = (target.left + target.right - own.Width()) / 2;
    const int y = (target.top + target.bottom - own.Height()) / 2;
    // The left and top edges win when the window is larger than the place.
    ::SetWindowPos(m_hWnd, nullptr, std::max<int>(std::min<int>(x, bounds.right - own.Width()), bounds.left),
                   std::max<int>(std::min<int>(y, bounds.bottom - own.Height()), bounds.top), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    const HGDIOBJ region = prgnClip ? prgnClip->m_hObject : nullptr;
    return CDC::FromHandle(::GetDCEx(m_hWnd, static_cast<HRGN>(region), flags));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return pDC ? ::ReleaseDC(m_hWnd, pDC->m_hDC) : 0;
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    if (pDC)
        SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    if (pDC)
        SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, pRgn ? static_cast<HRGN>(pRgn->m_hObject) : nullptr, bErase);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    // A null handle would mean the whole screen to the system.
    return m_hWnd && ::RedrawWindow(m_hWnd, lpRectUpdate,
                                    prgnUpdate ? static_cast<HRGN>(prgnUpdate->m_hObject) : nullptr, flags);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id))
            return id;
    return 0;
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
}

CWnd* CWnd::GetOwner() const {
    return FromHandle(m_hWndOwner ? m_hWndOwner : ::GetParent(m_hWnd));
}

CWnd* CWnd::GetTopLevelParent() const {
    HWND top = m_hWnd;
    for (HWND parent = ::GetParent(top); parent; parent = ::GetParent(parent))
        top = parent;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const {
    HWND top = ::GetAncestor(m_hWnd, GA_ROOT);
    for (HWND owner = ::GetWindow(top, GW_OWNER); owner; owner = ::GetWindow(owner, GW_OWNER))
        top = owner;
    return FromHandle(top);
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    HWND owner = HandleOf(pParent);
    if (!owner)
        owner = HandleOf(AfxGetMainWnd());
    while (owner && (::GetWindowLongPtrW(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);
    HWND top = owner;
    for (HWND above = owner; above; above = ::GetParent(above))
        top = above;
    if (!HandleOf(pParent) && owner)
        owner = ::GetLastActivePopup(owner);
    if (pWndTop) {
        *pWndTop = nullptr;
        if (top && top != owner && ::IsWindowEnabled(top)) {
            *pWndTop = top;
            ::EnableWindow(top, FALSE);
        }
    }
    return FromHandle(owner);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

void CWnd::DragAcceptFiles(BOOL bAccept) {
    ::DragAcceptFiles(m_hWnd, bAccept);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    for (HWND child = ::GetTopWindow(m_hWnd); child;) {
        const HWND next = ::GetWindow(child, GW_HWNDNEXT);
        CWnd* const pWnd = bOnlyPerm ? FromHandlePermanent(child) : nullptr;
        if (pWnd)
            AfxCallWndProc(AfxThreadState::Get(), pWnd, child, message, wParam, lParam);
        else if (!bOnlyPerm)
            ::SendMessageW(child, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(child))
            FromHandle(child)->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
        child = next;
    }
}
