// The windows that a modal dialog disables for its time.
#pragma once

#include <windows.h>

#include <utility>

// Enables a window that may be gone already, or never was.
inline void EnableAgain(HWND hWnd) {
    if (hWnd && ::IsWindow(hWnd))
        ::EnableWindow(hWnd, TRUE);
}

// Keeps the owner disabled, and enables it again before the dialog goes: else the system would hand the
// activation to another program. An owner that was disabled before stays so.
class DisabledOwner {
  public:
    explicit DisabledOwner(HWND owner)
        : m_disabled(owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner) ? owner : nullptr) {
        if (m_disabled)
            ::EnableWindow(m_disabled, FALSE);
    }
    ~DisabledOwner() { Enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;
    void Enable() { EnableAgain(std::exchange(m_disabled, nullptr)); }

  private:
    HWND m_disabled;
};
