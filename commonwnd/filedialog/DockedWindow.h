// A window of the host that lives in another parent for a while.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

class CDockedWindow {
  public:
    CDockedWindow() = default;
    CDockedWindow(const CDockedWindow&) = delete;
    CDockedWindow& operator=(const CDockedWindow&) = delete;

    // Makes the window a child of `parent`, hidden. FALSE for null or a window that is gone.
    BOOL Dock(HWND window, HWND parent);
    // Gives it back, hidden, to the parent (or owner), place and size it had. A window that is gone, or whose
    // former parent is, stays where it is. Does nothing when nothing is docked.
    void Undock();

  private:
    HWND m_window = nullptr;
    HWND m_formerParent = nullptr; // null: it was a top-level window
    HWND m_formerOwner = nullptr;
    LONG_PTR m_formerStyle = 0;
    CRect m_formerPlace; // of its parent's client area, of the screen for a top-level window
};

} // namespace _qv_commonwnd
