// A visible window of the platform alone, for tests that need a device context or a menu owner.
#pragma once

#include "afxwin.h"

class PlainWindow {
  public:
    // nClassStyle: CS_ flags, such as CS_OWNDC.
    explicit PlainWindow(UINT nClassStyle = 0);
    ~PlainWindow();
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    HWND Handle() const { return m_hWnd; }
    CWnd* Object() const { return CWnd::FromHandle(m_hWnd); }

    static constexpr int kClientPx = 120; // width and height

  private:
    ATOM m_class;
    HWND m_hWnd;
};
