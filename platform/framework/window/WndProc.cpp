// The procedure of all windows that have an object.
#include "WndProc.h"
#include "WndAccess.h"
#include "thread/ThreadState.h"
#include "afx/UserException.h"
#include "afx/WinThread.h"

namespace {

LRESULT OnFrameworkException(AfxThreadState& state, CException* e) noexcept {
    const MSG message = state.currentMessage;
    LRESULT result = AnswerAfterException(message);
    try {
        if (state.thread)
            result = state.thread->ProcessWndProcException(e, &message);
        else if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
            e->ReportError(MB_OK | MB_ICONSTOP);
        e->Delete();
    } catch (...) {
        ::OutputDebugStringW(L"AfxFrame: reporting an exception failed\n");
    }
    return result;
}

// Dead temporary objects are looked for when so many have gathered.
constexpr size_t kManyTemporaries = 64;

// A window that is gone must not stay connected, whatever its handlers did.
void ForgetDestroyed(AfxThreadState& state, HWND hWnd) {
    state.orphanProcedures.erase(hWnd);
    if (CWnd* const pWnd = state.permanentWindows.Find(hWnd))
        pWnd->Detach();
    // With no handler on the stack nobody holds the object of a dead window.
    if (state.callDepth == 0 && state.temporaryWindows.Count() >= kManyTemporaries)
        state.temporaryWindows.RemoveDead();
}

} // namespace

LRESULT AnswerAfterException(const MSG& message) {
    if (message.message == WM_CREATE)
        return -1; // the creation fails
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr); // else the message would come for ever
    return 0;
}

LRESULT AfxCallWndProc(AfxThreadState& state, CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam,
                       LPARAM lParam) {
    const MSG outer = state.currentMessage;
    state.currentMessage.hwnd = hWnd;
    state.currentMessage.message = message;
    state.currentMessage.wParam = wParam;
    state.currentMessage.lParam = lParam;
    ++state.callDepth;
    LRESULT result = 0;
    try {
        result = AfxWndAccess::Call(pWnd, message, wParam, lParam);
    } catch (CException* e) {
        result = OnFrameworkException(state, e);
    } catch (const std::exception& e) {
        ::OutputDebugStringA(e.what());
        result = AnswerAfterException(state.currentMessage);
    } catch (...) {
        ::OutputDebugStringW(L"AfxFrame: a message handler threw an unknown exception\n");
        result = AnswerAfterException(state.currentMessage);
    }
    state.currentMessage = outer;
    --state.callDepth;
    return result;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    AfxThreadState& state = AfxThreadState::Get();
    LRESULT result = 0;
    if (CWnd* const pWnd = state.permanentWindows.Find(hWnd)) {
        result = AfxCallWndProc(state, pWnd, hWnd, nMsg, wParam, lParam);
    } else {
        const auto orphan = state.orphanProcedures.find(hWnd);
        result = orphan != state.orphanProcedures.end()
                     ? ::CallWindowProcW(orphan->second, hWnd, nMsg, wParam, lParam)
                     : ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    }
    if (nMsg == WM_NCDESTROY)
        ForgetDestroyed(state, hWnd);
    return result;
}
