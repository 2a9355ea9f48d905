// CWnd: a window.
//
//     CWnd wnd;
//     wnd.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"Title", WS_OVERLAPPEDWINDOW, rect, nullptr, 0);
//
// One CWnd stands for one window handle on the thread that made the connection (by creating, attaching or
// subclassing); FromHandle gives that object back, or a temporary one for windows that have none. A temporary
// object is valid until the thread's message loop is idle; do not store it. The destructor of a connected
// object destroys the window. Windows are used on the thread that created them.
//
// Without a window (m_hWnd null) the asking functions answer 0, FALSE, null or empty and the others do
// nothing. Positions and sizes are pixels, client co-ordinates for children, screen ones for top-level
// windows. Pointers to windows, device contexts, fonts and menus that functions return may be temporary.
#pragma once

#include "CmdTarget.h"
#include "DC.h"
#include "Menu.h"
#include "String.h"
#include "../atltypes.h"
#include <commctrl.h>
#include <shellapi.h>

// The platform headers take these member names for macros.
#undef GetNextWindow
#undef SubclassWindow

class CDataExchange;
class CListBox;
class CScrollBar;
struct CCreateContext;

// State bits of m_nFlags.
constexpr UINT WF_MODALLOOP = 0x0008;     // RunModalLoop is on the stack
constexpr UINT WF_CONTINUEMODAL = 0x0010; // that loop shall go on

// Flags of RunModalLoop.
constexpr DWORD MLF_NOIDLEMSG = 0x0001;  // no WM_ENTERIDLE to the parent
constexpr DWORD MLF_NOKICKIDLE = 0x0002; // no WM_KICKIDLE to the window
constexpr DWORD MLF_SHOWONIDLE = 0x0004; // show the window when the queue is empty for the first time

// Sent to the window of a modal loop while the queue is empty: lParam counts from 0. Nonzero answer: again.
constexpr UINT WM_KICKIDLE = 0x036A;

// Sent by SubclassWindow to a window that has an object already. A control class that makes objects for
// windows of its own accord (so that GetDlgItem finds one for a dialog template's control) answers by
// disconnecting its object. Anybody else leaves it unanswered, and SubclassWindow fails.
constexpr UINT WM_AFXMAKEROOM = 0x037E;

// The windows' procedure; class registrations name it.
AFXFRAME_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

class AFXFRAME_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
  public:
    HWND m_hWnd = nullptr; // null: not connected

    // Places in the z order for SetWindowPos.
    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;

    CWnd();
    ~CWnd() override;
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }
    HWND GetSafeHwnd() const; // also null when called through a null pointer

    // ---- Connection of object and handle. FromHandle: null for null. FromHandlePermanent: null when no
    // object is connected on this thread.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    // Attach connects without subclassing. FALSE for null, when this object or the handle is connected
    // already.
    BOOL Attach(HWND hWndNew);
    HWND Detach(); // the window stays; returns its handle
    virtual void PreSubclassWindow() {}
    // Connects a window that somebody else created and routes its messages through this object. FALSE as
    // Attach.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent); // FALSE when the parent has no such control
    HWND UnsubclassWindow();                       // puts the former procedure back and detaches

    // ---- Creation and destruction. FALSE when the system or an OnCreate refused; PostNcDestroy has run
    // then.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs); // FALSE stops the creation
    virtual BOOL DestroyWindow();
    virtual void PostNcDestroy() {} // the last call a window's object gets; may delete the object

    // ---- Style, text, font, menu.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    // FALSE when nothing changed. nFlags other than 0 are those of SetWindowPos, called with them afterwards.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const; // null: the system font
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
    BOOL SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu ? pMenu->m_hMenu : nullptr); }
    CMenu* GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }

    // ---- Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return m_hWnd && ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
    }
    // bDeep: children of children too. bOnlyPerm: only windows with an object, called directly.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static const MSG* PASCAL GetCurrentMessage(); // the message in work on this thread
    BOOL IsDialogMessage(LPMSG lpMsg);
    virtual BOOL PreTranslateMessage(MSG* pMsg); // TRUE: the message is dealt with
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);

    // ---- Size, position, state.
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    int GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    // Null pwndTo: the screen.
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    // Over pAlternateOwner, else over the owner (parent for a child), else the work area; kept on the
    // monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); } // TRUE: was disabled
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void CloseWindow() { ::CloseWindow(m_hWnd); }
    BOOL FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }

    // ---- Painting.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); } // give it back with ReleaseDC
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) {
        ::SendMessageW(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
    }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }

    // ---- Timers. nElapse in milliseconds; lpfnTimer null: WM_TIMER. 0 on failure.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
        return m_hWnd ? ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer) : 0;
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    // ---- Capture, focus, activation.
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

    // ---- Controls of a dialog.
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID)); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); } // null: none
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemTextW(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) {
        ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
    }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
        ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
    }
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const; // 0: none
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
    }
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    // Moves data between controls and members by DoDataExchange. FALSE when a control's content was refused.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // ---- Scroll bars of the window.
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE) {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    int GetScrollLimit(int nBar); // the largest position the user can reach
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) {
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
    }
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
    }
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const; // null: the bar is the window's own
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }

    // ---- Relatives.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetOwner() const; // the one set by SetOwner, else the parent
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd ? pOwnerWnd->m_hWnd : nullptr; }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    CWnd* GetTopLevelParent() const; // the window itself when it has no parent
    CWnd* GetTopLevelOwner() const;
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    BOOL IsChild(const CWnd* pWnd) const { return pWnd && ::IsChild(m_hWnd, pWnd->m_hWnd); }
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
        return FromHandle(::FindWindowW(lpszClassName, lpszWindowName));
    }
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow) {
        return FromHandle(::FindWindowExW(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
    }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point) const {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
    }
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);

    // ---- Messages of the user.
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    void DragAcceptFiles(BOOL bAccept = TRUE);

    // ---- Modal state. The loop runs until EndModalLoop and returns its argument; -1 when the window or the
    // object died or the program was told to quit meanwhile.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    // Reflection: the parent sends a message of this control back to it. TRUE when the control took it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

  protected:
    HWND m_hWndOwner = nullptr;
    UINT m_nFlags = 0;
    WNDPROC m_pfnSuper = nullptr; // the procedure before ours; null: the default procedure
    int m_nModalResult = 0;

    // ---- Message processing: WindowProc -> OnWndMsg -> handler, else DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Default(); // default processing of the message in work
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL PreTranslateInput(LPMSG lpMsg);
    virtual void DoDataExchange(CDataExchange*) {}

#include "WndHandlers.h"

    friend class CDialog;
    friend class CDataExchange;
    friend class CFileDialog;
    friend class CFrameWnd;
    friend struct AfxWndAccess; // the window procedure and the modal loop

  private:
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {
    }
    DECLARE_MESSAGE_MAP()
};
