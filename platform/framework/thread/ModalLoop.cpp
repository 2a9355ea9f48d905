// The modal loop: messages one by one, idle work while there are none, and the window shown at last.
#include "ModalLoop.h"
#include "MessagePump.h"
#include "ThreadState.h"
#include "afx/WinThread.h"

namespace {

// A window is shown once the queue is empty, but not later than after so many messages.
constexpr int kMessagesBeforeShow = 16;

} // namespace

ModalLoop::ModalLoop(CWnd& wnd, DWORD flags)
    : m_wnd(wnd), m_watch(&wnd), m_flags(flags),
      m_showPending((flags & MLF_SHOWONIDLE) && !(wnd.GetStyle() & WS_VISIBLE)) {
}

bool ModalLoop::Run() {
    while (MayGoOn()) {
        if (m_idleSteps == 0)
            WorkWhileIdle();
        if (!MayGoOn())
            break;
        if (!AfxPumpMessage()) { // the loop further out is to end, too
            AfxPostQuitMessage(static_cast<int>(AfxThreadState::Get().pumpedMessage.wParam));
            return false;
        }
        if (IsAlive())
            OnMessageDone(AfxThreadState::Get().pumpedMessage);
    }
    return true;
}

void ModalLoop::WorkWhileIdle() {
    for (bool again = true; again && MayGoOn() && IsQueueEmpty();)
        again = DoIdleStep();
}

// True while there is more to do before the queue fills again.
bool ModalLoop::DoIdleStep() {
    Show();
    if (!IsAlive())
        return false;
    const HWND parent = ::GetParent(m_wnd.m_hWnd);
    if (m_idleSteps == 0 && parent && !(m_flags & MLF_NOIDLEMSG))
        ::SendMessageW(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_wnd.m_hWnd));
    bool again = false;
    if (IsAlive() && !(m_flags & MLF_NOKICKIDLE))
        again = m_wnd.SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_idleSteps++) != 0;
    // Callers further out may hold temporary objects: only those of this loop go.
    m_temporaries.Remove();
    return again;
}

void ModalLoop::OnMessageDone(const MSG& message) {
    if (m_showPending && ++m_messages >= kMessagesBeforeShow)
        Show();
    if (AfxIsIdleMessage(message))
        m_idleSteps = 0;
}

void ModalLoop::Show() {
    if (!std::exchange(m_showPending, false) || !IsAlive())
        return;
    m_wnd.ShowWindow(SW_SHOWNORMAL);
    if (IsAlive())
        m_wnd.UpdateWindow();
}
