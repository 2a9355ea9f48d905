// HotTracker.h: whether the pointer is above a control.
#pragma once

#include <windows.h>

namespace _qv_commonctrl {

class HotTracker {
  public:
    bool IsHot() const { return m_hot; }
    // Looks at every message; true when the state has changed.
    bool Follow(HWND wnd, UINT message) {
        const bool former = m_hot;
        if (message == WM_MOUSEMOVE && !m_hot) {
            TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, wnd, 0};
            m_hot = TrackMouseEvent(&track) != FALSE;
        } else if (message == WM_MOUSELEAVE || (message == WM_ENABLE && !IsWindowEnabled(wnd))) {
            m_hot = false;
        }
        return m_hot != former;
    }

  private:
    bool m_hot = false;
};

} // namespace _qv_commonctrl
