// What a step of a ModalScript (or a test that drives another process) does with windows: wait, click, type,
// read, look. Every wait has a deadline; when it passes, the step ends with StepFailure, which the script
// turns into a test failure with a picture of the screen.
#pragma once

#include "Input.h"
#include "Picture.h"
#include "WindowQuery.h"

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

namespace qvtest {

using Milliseconds = std::chrono::milliseconds;

inline constexpr Milliseconds kWaitLimit{8000};

class StepFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Works off the calling thread's messages until nothing is left to do, painting included.
void pumpMessages();

// Works them off until the condition holds; false when the time passed.
bool pumpUntil(const std::function<bool()>& condition, Milliseconds limit = Milliseconds(5000));

class Driver {
  public:
    // For windows of any thread or process; waits are not cut short and onUi is not available.
    Driver() = default;

    // For steps beside a modal loop: helper is a window of the loop's thread, ended is an event that is set
    // when the loop has ended. Both are borrowed.
    Driver(HWND helper, HANDLE ended) : m_helper(helper), m_ended(ended) {}

    // ---- waiting; what: named in the failure message ----
    void waitFor(const std::string& what, const std::function<bool()>& condition,
                 Milliseconds limit = kWaitLimit);
    HWND waitWindow(const WindowQuery& query, Milliseconds limit = kWaitLimit);
    HWND waitControl(HWND parent, int id, Milliseconds limit = kWaitLimit);
    HWND waitDescendant(HWND parent, const std::wstring& className, Milliseconds limit = kWaitLimit);
    // Until the window is destroyed or hidden.
    void waitGone(HWND window, Milliseconds limit = kWaitLimit);
    void waitText(HWND window, const std::wstring& text, Milliseconds limit = kWaitLimit);
    void waitEnabled(HWND window, bool enabled, Milliseconds limit = kWaitLimit);
    void waitFocus(HWND window, Milliseconds limit = kWaitLimit);

    // Until all input sent so far was handled and painted. The other calls do this themselves.
    void settle();

    // ---- mouse: positions are client pixels of the window ----
    void click(HWND control); // in its middle; waits until it is visible and enabled
    void click(HWND dialog, int id);
    void clickAt(HWND window, POINT client, MouseButton button = MouseButton::Left,
                 unsigned modifiers = NoModifier);
    void doubleClickAt(HWND window, POINT client);
    // Presses at one place, moves to another in small steps, lets go there.
    void drag(HWND window, POINT from, POINT to);
    void hover(HWND window, POINT client);
    void wheel(HWND window, POINT client, int notches);

    // ---- keyboard: goes to whatever has the focus ----
    void type(const std::wstring& text);
    void press(WORD key, unsigned modifiers = NoModifier);
    // Clicks into an edit, selects all of it and types over it.
    void replaceText(HWND edit, const std::wstring& text);
    void enter() { press(VK_RETURN); }
    void escape() { press(VK_ESCAPE); }

    // ---- reading ----
    std::wstring text(HWND window) const { return textOf(window); }
    std::wstring text(HWND dialog, int id) const { return textOf(findControl(dialog, id)); }
    // The window with the keyboard focus on the thread of the foreground window.
    HWND focus() const;
    bool checked(HWND button) const;

    // ---- inside the modal loop's thread ----
    // Runs an action there and returns when it is done. For calls that only the owner thread may make.
    void onUi(const std::function<void()>& action);

    // A message with a time limit, so that a hung window fails the step and not the whole program.
    LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // Ends the step with a failure.
    [[noreturn]] void fail(const std::string& why) const;

    static constexpr UINT kRunMessage = WM_APP + 0x51;    // wParam: const std::function<void()>*
    static constexpr UINT kSettleMessage = WM_APP + 0x52; // wParam: number, user data once all is quiet

  private:
    bool loopEnded() const;
    void pause() const;
    void settleForeign() const;

    HWND m_helper = nullptr;
    HANDLE m_ended = nullptr;
    LONG_PTR m_serial = 0;
};

} // namespace qvtest
