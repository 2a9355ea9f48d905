// One turn of a message loop, and what stands before the dispatch of a message.
#include "MessagePump.h"
#include "ThreadState.h"
#include "afx/WinThread.h"

bool IsQueueEmpty() {
    MSG message;
    return !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

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

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}
