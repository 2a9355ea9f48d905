#include "ValuesFixture.h"

#include <cstring>

namespace values_test {

namespace {

std::function<void()> g_action;

void CALLBACK RunAction(HWND, UINT, UINT_PTR id, DWORD) {
    ::KillTimer(nullptr, id);
    std::exchange(g_action, nullptr)();
}

void Copy(HWND owner, const std::wstring& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
    ::GlobalUnlock(memory);
    ASSERT_TRUE(::OpenClipboard(owner));
    ::EmptyClipboard();
    EXPECT_NE(nullptr, ::SetClipboardData(CF_UNICODETEXT, memory));
    ::CloseClipboard();
}

} // namespace

void Values::Once(const std::function<void()>& action) {
    g_action = action;
    ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, RunAction);
}

void Values::Paste(Driver& user, HWND edit, const std::wstring& text) {
    user.onUi([&] {
        Copy(edit, text);
        ::SendMessageW(edit, EM_SETSEL, 0, -1);
        ::SendMessageW(edit, WM_PASTE, 0, 0);
    });
}

} // namespace values_test
