// CWnd: connection of object and window, creation and destruction.
#include "ThreadState.h"
#include "afxapp_.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

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
    // Hides from the compiler that `this` should not be null: callers may ask through what GetDlgItem returned.
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
