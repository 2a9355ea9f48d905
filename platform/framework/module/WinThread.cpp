#include "window/ThreadState.h"
#include "afxapp_.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace {

bool IsQueueEmpty() {
    MSG message;
    return !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

} // namespace

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
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr);
    return 0;
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

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}
