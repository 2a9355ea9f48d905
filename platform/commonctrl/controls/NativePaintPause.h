// NativePaintPause.h: a control that does not draw its native look for the length of a scope.
#pragma once

#include <windows.h>

namespace _qv_commonctrl {

// For a message at which the control draws at once. Use it only round messages that tell the parent nothing:
// the window counts as hidden meanwhile.
class NativePaintPause {
  public:
    explicit NativePaintPause(HWND wnd) : m_wnd(wnd), m_paused(IsWindowVisible(wnd) != FALSE) {
        if (m_paused)
            DefWindowProcW(m_wnd, WM_SETREDRAW, FALSE, 0);
    }
    NativePaintPause(const NativePaintPause&) = delete;
    NativePaintPause& operator=(const NativePaintPause&) = delete;
    ~NativePaintPause() {
        if (!m_paused || !IsWindow(m_wnd))
            return;
        DefWindowProcW(m_wnd, WM_SETREDRAW, TRUE, 0);
        RedrawWindow(m_wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }

  private:
    HWND m_wnd;
    bool m_paused; // a window inside a hidden one draws nothing anyway
};

} // namespace _qv_commonctrl
