// RedrawPause.h: a window that is not redrawn for the length of a scope.
#pragma once

#include <windows.h>

namespace _qv_commonctrl {

// A hidden window is left alone: switching redrawing on would show it.
class RedrawPause {
  public:
    explicit RedrawPause(HWND wnd) : m_wnd((GetWindowLongPtrW(wnd, GWL_STYLE) & WS_VISIBLE) ? wnd : nullptr) {
        if (m_wnd)
            SendMessageW(m_wnd, WM_SETREDRAW, FALSE, 0);
    }
    ~RedrawPause() {
        if (!m_wnd)
            return;
        SendMessageW(m_wnd, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(m_wnd, nullptr, TRUE);
    }
    RedrawPause(const RedrawPause&) = delete;
    RedrawPause& operator=(const RedrawPause&) = delete;

  private:
    HWND m_wnd;
};

} // namespace _qv_commonctrl
