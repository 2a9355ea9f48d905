// CWinThread: the thread's life from its first to its last message.
#include "MessagePump.h"
#include "ThreadState.h"
#include "handles/TemporaryScope.h"
#include "window/WndProc.h"
#include "afx/UserException.h"
#include "afx/WinThread.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId()) {
}

CWinThread::~CWinThread() {
    AfxThreadState& state = AfxThreadState::Get();
    if (state.thread == this)
        state.thread = nullptr;
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return static_cast<int>(AfxThreadState::Get().pumpedMessage.wParam);
}

int CWinThread::Run() {
    LONG idleCount = 0;
    bool idle = true;
    for (;;) {
        while (idle && IsQueueEmpty())
            idle = OnIdle(idleCount++) != FALSE;
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&AfxThreadState::Get().pumpedMessage)) {
            idle = true;
            idleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage() {
    return AfxPumpMessage();
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount == 1)
        AfxDeleteTempObjects();
    return lCount < 1;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    return AfxIsIdleMessage(*pMsg);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    const CWnd* const main = GetMainWnd();
    return CWnd::WalkPreTranslateTree(main ? main->m_hWnd : nullptr, pMsg);
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(MB_OK | MB_ICONSTOP);
    return AnswerAfterException(*pMsg);
}

CWnd* CWinThread::GetMainWnd() {
    return m_pActiveMainWnd ? m_pActiveMainWnd : m_pMainWnd;
}

CWinThread* AFXAPI AfxGetThread() {
    return AfxThreadState::Get().thread;
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* const thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}
