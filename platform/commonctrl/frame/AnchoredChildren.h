// AnchoredChildren.h: the children that follow a window's client area, and where each of them goes.
#pragma once

#include "QVBaseFrame.h"

#include <vector>

namespace _qv_commonctrl {

// Registered children with the place they had at the client size of that moment.
class AnchoredChildren {
  public:
    // `host` is the window whose client area counts. A window that is not its child is ignored.
    void Register(HWND host, HWND child, int mode, DWORD flags);
    // Moves and sizes all children for the host's present client size. Children that are gone are forgotten.
    void Layout(HWND host);
    void Clear() { m_children.clear(); }

  private:
    struct Child {
        HWND wnd;
        CRect rect;     // client co-ordinates of the host
        CSize hostSize; // client size for which `rect` holds
        int mode;
        DWORD flags;
    };

    void ForgetDead(HWND host);

    std::vector<Child> m_children;
};

} // namespace _qv_commonctrl
