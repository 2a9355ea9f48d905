// The message loops: one turn, the walk before dispatch, and the modal loop of a window.
#include "window/ThreadState.h"
#include "afxapp_.h"

namespace {

// A window is shown once the queue is empty, but not later than after so many messages.
constexpr int kMessagesBeforeShow = 16;

bool IsQueueEmpty() {
    MSG message;
    return !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

bool IsUserInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

// One run of a modal loop: what is still to be done while the queue is empty.
class ModalRun {
  public:
    ModalRun(CWnd& wnd, DWORD flags)
        : m_wnd(wnd), m_watch(&wnd), m_flags(flags),
          m_showPending((flags & MLF_SHOWONIDLE) && !(wnd.GetStyle() & WS_VISIBLE)) {}

    bool IsAlive() const { return m_watch.IsAlive(); }

    // True while there is more to do before the queue fills again.
    bool DoIdleStep() {
        Show();
        if (!IsAlive())
            return false;
        const HWND parent = ::GetParent(m_wnd.m_hWnd);
        if (m_count == 0 && parent && !(m_flags & MLF_NOIDLEMSG))
            ::SendMessageW(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_wnd.m_hWnd));
        bool again = false;
        if (IsAlive() && !(m_flags & MLF_NOKICKIDLE))
            again = m_wnd.SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_count++) != 0;
        // Callers further out may hold temporary objects: only those of this loop go.
        m_temporaries.Remove();
        return again;
    }
    void OnMessageDone(const MSG& message) {
        if (m_showPending && ++m_messages >= kMessagesBeforeShow)
            Show();
        if (AfxIsIdleMessage(message))
            m_count = 0;
    }
    bool WantsIdle() const { return m_count == 0; }

  private:
    void Show() {
        if (!std::exchange(m_showPending, false) || !IsAlive())
            return;
        m_wnd.ShowWindow(SW_SHOWNORMAL);
        if (IsAlive())
            m_wnd.UpdateWindow();
    }

    CWnd& m_wnd;
    WndWatch m_watch;
    const DWORD m_flags;
    const TemporaryScope m_temporaries;
    bool m_showPending;
    LONG m_count = 0;
    int m_messages = 0;
};

} // namespace

bool AfxIsIdleMessage(const MSG& message) {
    constexpr UINT kSystemCaretTimer = 0x0118;
    AfxThreadState& state = AfxThreadState::Get();
    if (message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE) {
        const bool moved = message.message != state.lastPumpedMessage ||
                           message.pt.x != state.lastMousePos.x || message.pt.y != state.lastMousePos.y;
        state.lastPumpedMessage = message.message;
        state.lastMousePos = message.pt;
        return moved;
    }
    state.lastPumpedMessage = message.message;
    return message.message != WM_PAINT && message.message != kSystemCaretTimer;
}

BOOL AFXAPI AfxPumpMessage() {
    AfxThreadState& state = AfxThreadState::Get();
    MSG message;
    if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
        state.pumpedMessage = message;
        return FALSE;
    }
    state.pumpedMessage = message;
    if (message.message != WM_KICKIDLE && !AfxPreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    state.pumpedMessage = message; // nested loops have used it
    return TRUE;
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* const thread = AfxGetThread();
    return thread ? thread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
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

int CWnd::RunModalLoop(DWORD dwFlags) {
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    ModalRun run(*this, dwFlags);
    bool quit = false;
    while (run.IsAlive() && !quit && ContinueModal()) {
        bool idle = run.WantsIdle();
        while (idle && run.IsAlive() && ContinueModal() && IsQueueEmpty())
            idle = run.DoIdleStep();
        if (!run.IsAlive() || !ContinueModal())
            break;
        quit = !AfxPumpMessage();
        if (run.IsAlive() && !quit)
            run.OnMessageDone(AfxThreadState::Get().pumpedMessage);
    }
    if (quit) // for the loop further out
        AfxPostQuitMessage(static_cast<int>(AfxThreadState::Get().pumpedMessage.wParam));
    if (!run.IsAlive())
        return -1;
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return quit || !m_hWnd ? -1 : m_nModalResult;
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
