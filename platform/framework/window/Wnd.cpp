// CWnd: connection of object and window, creation and destruction, messages, state, painting, scroll bars,
// relatives, modal state.
#include "CreationHook.h"
#include "WindowText.h"
#include "WndProc.h"
#include "handles/HandleOf.h"
#include "messages/Dispatch.h"
#include "thread/ModalLoop.h"
#include "thread/ThreadState.h"
#include "afx/DataExchange.h"
#include "afx/ListBox.h"
#include "afx/Resources.h"
#include "afx/ScrollBar.h"
#include "afx/UserException.h"
#include "afx/WinApp.h"
#include "afx/WndClass.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace {

bool IsControlColour(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

bool IsUserInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

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

// Where a window stands in the middle of another one or, without one, of its parent or the work area: a child
// in its parent's pixels, else on the screen. The left and top edges win when the window is larger than the
// place.
CPoint CentredPlace(HWND hWnd, bool isChild, HWND over) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(over ? over : hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    CRect bounds(monitor.rcWork);
    CRect target(bounds);
    if (isChild) {
        const HWND parent = ::GetParent(hWnd);
        ::GetClientRect(parent, &bounds);
        ::GetClientRect(over, &target);
        ::MapWindowPoints(over, parent, reinterpret_cast<LPPOINT>(&target), 2);
    } else if (over) {
        ::GetWindowRect(over, &target);
    }
    CRect own;
    ::GetWindowRect(hWnd, &own);
    const int x = (target.left + target.right - own.Width()) / 2;
    const int y = (target.top + target.bottom - own.Height()) / 2;
    return CPoint(std::max<int>(std::min<int>(x, bounds.right - own.Width()), bounds.left),
                  std::max<int>(std::min<int>(y, bounds.bottom - own.Height()), bounds.top));
}

// The scroll bar control that takes a window bar's place, with the bar's number in its own terms.
struct Bar {
    HWND hWnd;
    int number;
};

Bar Resolve(const CWnd& wnd, int nBar) {
    const CScrollBar* const control = nBar == SB_CTL ? nullptr : wnd.GetScrollBarCtrl(nBar);
    return control ? Bar{control->m_hWnd, SB_CTL} : Bar{wnd.m_hWnd, nBar};
}

} // namespace

CWnd::CWnd() = default;

CWnd::~CWnd() {
    AfxThreadState* const state = AfxThreadState::GetExisting();
    if (!state) // temporary objects of an ending thread among others
        return;
    if (state->creatingWnd == this)
        state->creatingWnd = nullptr;
    // Temporary objects and the z order places borrow their handle.
    if (m_hWnd && state->permanentWindows.Find(m_hWnd) == this)
        CWnd::DestroyWindow();
    if (m_hWnd && state->permanentWindows.Find(m_hWnd) == this)
        Detach();
    WndWatch::OnDeleted(this);
}

HWND CWnd::GetSafeHwnd() const {
    // Hides from the compiler that `this` should not be null: callers may ask through what GetDlgItem
    // returned.
    const CWnd* volatile self = this;
    const CWnd* const asked = self;
    return asked ? asked->m_hWnd : nullptr;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    if (!hWnd)
        return nullptr;
    AfxThreadState& state = AfxThreadState::Get();
    CWnd* const pWnd = state.permanentWindows.Find(hWnd);
    return pWnd ? pWnd : state.temporaryWindows.FindOrMake(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return hWnd ? AfxThreadState::Get().permanentWindows.Find(hWnd) : nullptr;
}

void PASCAL CWnd::DeleteTempMap() {
    AfxThreadState::Get().temporaryWindows.RemoveSince(0);
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (!hWndNew || m_hWnd)
        return FALSE;
    WndMap& map = AfxThreadState::Get().permanentWindows;
    if (map.Find(hWndNew))
        return FALSE;
    map.Add(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hWnd = std::exchange(m_hWnd, nullptr);
    if (!hWnd)
        return nullptr;
    AfxThreadState& state = AfxThreadState::Get();
    if (state.permanentWindows.Find(hWnd) == this)
        state.permanentWindows.Remove(hWnd);
    else
        state.temporaryWindows.Retire(hWnd, this);
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!::IsWindow(hWnd) || m_hWnd)
        return FALSE;
    // An object that a control has made for itself leaves the window to the program's own.
    if (AfxThreadState::Get().permanentWindows.Find(hWnd))
        ::SendMessageW(hWnd, WM_AFXMAKEROOM, 0, 0);
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    // Our procedure may still be in the window's chain from an earlier connection.
    AfxThreadState& state = AfxThreadState::Get();
    const auto orphan = state.orphanProcedures.find(hWnd);
    if (orphan != state.orphanProcedures.end()) {
        *GetSuperWndProcAddr() = orphan->second;
        state.orphanProcedures.erase(orphan);
        return TRUE;
    }
    const auto former = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (!former) { // a window of another process
        Detach();
        return FALSE;
    }
    if (former != &AfxWndProc)
        *GetSuperWndProcAddr() = former;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return pParent && SubclassWindow(::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    if (!m_hWnd)
        return nullptr;
    WNDPROC& super = *GetSuperWndProcAddr();
    if (super) {
        const auto current = ::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC);
        if (current == reinterpret_cast<LONG_PTR>(&AfxWndProc))
            ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
        else if (current) // somebody stands before us and calls us: pass on to the former procedure
            AfxThreadState::Get().orphanProcedures[m_hWnd] = super;
        super = nullptr;
    }
    return Detach();
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    if (!pParentWnd || !pParentWnd->m_hWnd) // children only
        return FALSE;
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    if (m_hWnd)
        return FALSE;
    AfxInitControls();
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs) || !AfxHookWindowCreate(this)) {
        PostNcDestroy();
        return FALSE;
    }
    const HWND hWnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                          cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came into being at all; else its destruction has called this
    return hWnd != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           ::LoadCursorW(nullptr, IDC_ARROW), nullptr, nullptr);
    return cs.lpszClass != nullptr;
}

BOOL CWnd::DestroyWindow() {
    const HWND hWnd = m_hWnd;
    if (!hWnd)
        return FALSE;
    AfxThreadState& state = AfxThreadState::Get();
    const bool isPermanent = state.permanentWindows.Find(hWnd) == this;
    const BOOL done = ::DestroyWindow(hWnd);
    // Attached without subclassing, the object has not seen the end. `this` is touched only when it is there.
    if (isPermanent && state.permanentWindows.Find(hWnd) == this && !::IsWindow(hWnd))
        Detach();
    return done;
}

void CWnd::OnNcDestroy() {
    AfxThreadState& state = AfxThreadState::Get();
    if (state.thread && state.thread->m_pMainWnd == this) {
        state.thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    // The window's modal loop may be waiting for a message, with a sent one the cause of this.
    if (m_nFlags & WF_MODALLOOP)
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
    const HWND hWnd = m_hWnd;
    Default();
    WNDPROC& super = *GetSuperWndProcAddr();
    if (super && ::GetWindowLongPtrW(hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AfxWndProc))
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    super = nullptr;
    Detach();
    PostNcDestroy();
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT& result = pResult ? *pResult : ignored;
    result = 0;
    if (message == WM_COMMAND && OnCommand(wParam, lParam)) {
        result = 1;
        return TRUE;
    }
    if (message == WM_COMMAND)
        return FALSE;
    if (message == WM_NOTIFY) {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        return header && header->hwndFrom && OnNotify(wParam, lParam, &result);
    }
    const UINT mapped = IsControlColour(message) ? WM_CTLCOLOR : message;
    const AFX_MSGMAP_ENTRY* const entry = AfxThreadState::Get().messageCache.Find(GetMessageMap(), mapped);
    return entry && AfxDispatchMessage(this, *entry, wParam, lParam, &result);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    return super ? ::CallWindowProcW(super, m_hWnd, message, wParam, lParam)
                 : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& message = AfxThreadState::Get().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &AfxThreadState::Get().currentMessage;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control && ReflectLastMsg(control))
        return TRUE;
    if (!id)
        return FALSE;
    return OnCmdMsg(id, control ? HIWORD(wParam) : CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify = {pResult, header};
    const auto id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = AfxThreadState::Get().currentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT* const result = pResult ? pResult : &ignored;
    if (message == WM_COMMAND) {
        if (!CWnd::OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr))
            return FALSE;
        *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        auto* const header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify = {result, header};
        return CWnd::OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    if (IsControlColour(message))
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, wParam, lParam, result);
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
    default:
        return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (pWnd && pWnd != this && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* const menu =
                CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
            return menu->DrawItem(lpDrawItemStruct);
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType != ODT_MENU && ReflectLastMsg(::GetDlgItem(m_hWnd, nIDCtl)))
        return;
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &result) ? result : Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    return static_cast<int>(pListBox && pListBox->SendChildNotifyLastMsg(&result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    return static_cast<int>(pListBox && pListBox->SendChildNotifyLastMsg(&result) ? result : Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT event = LOWORD(message);
    if ((event == WM_CREATE || event == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
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

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* const pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    return IsUserInput(lpMsg->message) && IsDialogMessage(lpMsg);
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) {
    return m_hWnd && ::IsDialogMessageW(m_hWnd, lpMsg);
}

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
    rString = WindowText(m_hWnd);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    if (lpStr && nMaxCount > 0)
        *lpStr = L'\0';
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString = WindowText(::GetDlgItem(m_hWnd, nID));
    return rString.GetLength();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(HandleOf(pFont)), MAKELPARAM(bRedraw, 0));
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
    const CPoint place = CentredPlace(m_hWnd, isChild, over);
    ::SetWindowPos(m_hWnd, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, HandleOf(prgnClip), flags));
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
    ::InvalidateRgn(m_hWnd, HandleOf(pRgn), bErase);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    // A null handle would mean the whole screen to the system.
    return m_hWnd && ::RedrawWindow(m_hWnd, lpRectUpdate, HandleOf(prgnUpdate), flags);
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

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    if (!m_hWnd)
        return FALSE;
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user has been told
        return FALSE;
    }
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    if (!lpScrollInfo)
        return FALSE;
    const Bar bar = Resolve(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.hWnd, bar.number, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    if (!lpScrollInfo)
        return FALSE;
    const Bar bar = Resolve(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(bar.hWnd, bar.number, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    const int hidden = std::max(static_cast<int>(info.nPage) - 1, 0);
    return std::max(info.nMax - hidden, info.nMin);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    const auto enable = [&](int number) {
        if (CScrollBar* const control = GetScrollBarCtrl(number))
            control->EnableWindow(bEnable);
        else
            ::EnableScrollBar(m_hWnd, static_cast<UINT>(number),
                              bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
    };
    if (nBar == SB_BOTH) {
        enable(SB_HORZ);
        enable(SB_VERT);
    } else {
        enable(nBar);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, HandleOf(prgnUpdate), lpRectUpdate,
                            flags);
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

int CWnd::RunModalLoop(DWORD dwFlags) {
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    ModalLoop loop(*this, dwFlags);
    const bool wasEnded = loop.Run();
    if (!loop.IsAlive())
        return -1;
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return wasEnded && m_hWnd ? m_nModalResult : -1;
}

BOOL CWnd::ContinueModal() {
    return m_hWnd && (m_nFlags & WF_CONTINUEMODAL);
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (!(m_nFlags & WF_CONTINUEMODAL))
        return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    PostMessage(WM_NULL); // wakes the loop
}
