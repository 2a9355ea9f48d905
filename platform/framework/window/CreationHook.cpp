// The hook that sees a window before its first message, and connects it to its object.
#include "CreationHook.h"
#include "thread/ThreadState.h"
#include "afx/Resources.h"

#include <cwchar>
#include <utility>

namespace {

bool IsInputMethodClass(const wchar_t* className) {
    return !IS_INTRESOURCE(className) && _wcsicmp(className, L"IME") == 0;
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    AfxThreadState& state = AfxThreadState::Get();
    const LRESULT result = ::CallNextHookEx(nullptr, code, wParam, lParam);
    if (code != HCBT_CREATEWND || !state.creatingWnd)
        return result;
    if (IsInputMethodClass(reinterpret_cast<const CBT_CREATEWND*>(lParam)->lpcs->lpszClass))
        return result; // the system's helper window, made along with a thread's first window
    CWnd* const pWnd = std::exchange(state.creatingWnd, nullptr);
    try {
        pWnd->SubclassWindow(reinterpret_cast<HWND>(wParam));
    } catch (...) {
        ::OutputDebugStringW(L"AfxFrame: a window object refused its window\n");
    }
    return result;
}

} // namespace

bool AfxHookWindowCreate(CWnd* pWnd) {
    AfxThreadState& state = AfxThreadState::Get();
    state.creatingWnd = pWnd;
    if (!state.creationHook)
        state.creationHook =
            ::SetWindowsHookExW(WH_CBT, CreationHook, AfxGetInstanceHandle(), ::GetCurrentThreadId());
    return state.creationHook != nullptr;
}

bool AfxUnhookWindowCreate() {
    AfxThreadState& state = AfxThreadState::Get();
    if (HHOOK const hook = std::exchange(state.creationHook, nullptr))
        ::UnhookWindowsHookEx(hook);
    return std::exchange(state.creatingWnd, nullptr) == nullptr;
}

void AfxInitControls() {
    static const bool done = [] {
        INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_WIN95_CLASSES | ICC_USEREX_CLASSES |
                                                            ICC_COOL_CLASSES | ICC_STANDARD_CLASSES};
        return ::InitCommonControlsEx(&classes) != FALSE;
    }();
    static_cast<void>(done);
}
