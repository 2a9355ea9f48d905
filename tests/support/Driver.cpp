#include "Driver.h"

namespace qvtest {
namespace {

constexpr DWORD kPollMs = 5;
constexpr DWORD kPumpPollMs = 10;
constexpr DWORD kSettlePollMs = 1;
constexpr Milliseconds kSettleLimit{3000};
constexpr DWORD kForeignSettleMs = 20;
constexpr UINT kSendLimitMs = 10000;
constexpr int kDragSteps = 8;

POINT toScreen(HWND window, POINT client) {
    ClientToScreen(window, &client);
    return client;
}

} // namespace

void pumpMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

bool pumpUntil(const std::function<bool()>& condition, Milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    do {
        pumpMessages();
        if (condition())
            return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, kPumpPollMs, QS_ALLINPUT);
    } while (std::chrono::steady_clock::now() < deadline);
    return condition();
}

bool Driver::loopEnded() const {
    return m_ended && WaitForSingleObject(m_ended, 0) == WAIT_OBJECT_0;
}

void Driver::pause() const {
    if (m_ended)
        WaitForSingleObject(m_ended, kPollMs);
    else
        Sleep(kPollMs);
}

void Driver::fail(const std::string& why) const {
    throw StepFailure(why);
}

void Driver::waitFor(const std::string& what, const std::function<bool()>& condition, Milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    for (;;) {
        const bool ended = loopEnded();
        if (condition())
            return;
        if (ended)
            fail("the modal loop ended while waiting for " + what);
        if (std::chrono::steady_clock::now() >= deadline)
            fail("waited " + std::to_string(limit.count()) + " ms in vain for " + what);
        pause();
    }
}

HWND Driver::waitWindow(const WindowQuery& query, Milliseconds limit) {
    HWND found = nullptr;
    waitFor(
        "a window '" + toUtf8(query.title + query.titlePart) + "' of class '" + toUtf8(query.className) + "'",
        [&] { return (found = findWindow(query)) != nullptr; }, limit);
    return found;
}

HWND Driver::waitControl(HWND parent, int id, Milliseconds limit) {
    HWND found = nullptr;
    waitFor(
        "control " + std::to_string(id), [&] { return (found = findControl(parent, id)) != nullptr; }, limit);
    return found;
}

HWND Driver::waitDescendant(HWND parent, const std::wstring& className, Milliseconds limit) {
    HWND found = nullptr;
    waitFor(
        "a child of class " + toUtf8(className),
        [&] { return (found = findDescendant(parent, className)) != nullptr; }, limit);
    return found;
}

void Driver::waitGone(HWND window, Milliseconds limit) {
    waitFor(
        "the end of a window", [&] { return !IsWindow(window) || !IsWindowVisible(window); }, limit);
}

void Driver::waitText(HWND window, const std::wstring& text, Milliseconds limit) {
    std::wstring last;
    try {
        waitFor(
            "text", [&] { return (last = textOf(window)) == text; }, limit);
    } catch (const StepFailure& failure) {
        fail(std::string(failure.what()) + " '" + toUtf8(text) + "'; it is '" + toUtf8(last) + "'");
    }
}

void Driver::waitEnabled(HWND window, bool enabled, Milliseconds limit) {
    waitFor(
        enabled ? "a window to be enabled" : "a window to be disabled",
        [&] { return (IsWindowEnabled(window) != FALSE) == enabled; }, limit);
}

void Driver::waitFocus(HWND window, Milliseconds limit) {
    waitFor(
        "the focus on " + describeWindow(window), [&] { return focus() == window; }, limit);
}

// A timer message comes only when no other message is waiting: then the input has been handled.
void Driver::settle() {
    if (!m_helper) {
        settleForeign();
        return;
    }
    const LONG_PTR serial = ++m_serial;
    PostMessageW(m_helper, kSettleMessage, static_cast<WPARAM>(serial), 0);
    const auto deadline = std::chrono::steady_clock::now() + kSettleLimit;
    while (GetWindowLongPtrW(m_helper, GWLP_USERDATA) < serial &&
           std::chrono::steady_clock::now() < deadline) {
        if (WaitForSingleObject(m_ended, kSettlePollMs) == WAIT_OBJECT_0)
            return;
    }
}

// Another process cannot be asked whether its queue is empty: it gets a moment, and must then answer a message.
void Driver::settleForeign() const {
    Sleep(kForeignSettleMs);
    SendMessageTimeoutW(GetForegroundWindow(), WM_NULL, 0, 0, SMTO_ABORTIFHUNG,
                        static_cast<UINT>(kSettleLimit.count()), nullptr);
}

void Driver::click(HWND control) {
    waitFor("a control that can be clicked: " + describeWindow(control),
            [&] { return IsWindowVisible(control) && IsWindowEnabled(control); });
    moveMouse(centreOf(control));
    settle();
    mouseDown();
    settle();
    mouseUp();
    settle();
}

void Driver::click(HWND dialog, int id) {
    click(waitControl(dialog, id));
}

void Driver::clickAt(HWND window, POINT client, MouseButton button, unsigned modifiers) {
    hover(window, client);
    settle(); // a pointer that still moves may tell the window server that no key is held
    if (modifiers & Control)
        keyEvent(VK_CONTROL, true);
    if (modifiers & Shift)
        keyEvent(VK_SHIFT, true);
    mouseDown(button);
    settle();
    mouseUp(button);
    settle();
    if (modifiers & Shift)
        keyEvent(VK_SHIFT, false);
    if (modifiers & Control)
        keyEvent(VK_CONTROL, false);
    settle();
}

void Driver::doubleClickAt(HWND window, POINT client) {
    hover(window, client);
    mouseDown();
    mouseUp();
    mouseDown();
    mouseUp();
    settle();
}

void Driver::drag(HWND window, POINT from, POINT to) {
    const POINT start = toScreen(window, from);
    const POINT end = toScreen(window, to);
    moveMouse(start);
    settle();
    mouseDown();
    settle();
    for (int i = 1; i <= kDragSteps; ++i) {
        moveMouse(
            {start.x + (end.x - start.x) * i / kDragSteps, start.y + (end.y - start.y) * i / kDragSteps});
        settle();
    }
    mouseUp();
    settle();
}

void Driver::hover(HWND window, POINT client) {
    moveMouse(toScreen(window, client));
    settle();
}

void Driver::wheel(HWND window, POINT client, int notches) {
    hover(window, client);
    turnWheel(notches);
    settle();
}

void Driver::type(const std::wstring& text) {
    typeText(text);
    settle();
}

void Driver::press(WORD key, unsigned modifiers) {
    pressKey(key, modifiers);
    settle();
}

void Driver::replaceText(HWND edit, const std::wstring& text) {
    click(edit);
    if (focus() != edit) // soon after a click in the same place this was a double click, which takes no focus
        click(edit);
    press(VK_HOME, Control);
    press(VK_END, Control | Shift);
    if (text.empty())
        press(VK_DELETE);
    else
        type(text);
}

HWND Driver::focus() const {
    const DWORD thread = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return thread && GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
}

bool Driver::checked(HWND button) const {
    return send(button, BM_GETCHECK) == BST_CHECKED;
}

void Driver::onUi(const std::function<void()>& action) {
    if (!m_helper)
        fail("onUi needs a modal loop of this process");
    send(m_helper, kRunMessage, reinterpret_cast<WPARAM>(&action));
}

LRESULT Driver::send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kSendLimitMs, &result))
        fail("no answer to message " + std::to_string(message) + " from " +
             (IsWindow(window) ? toUtf8(classOf(window)) : std::string("a window that is gone")));
    return static_cast<LRESULT>(result);
}

} // namespace qvtest
