// ScrollOverlay.h: a window that lies over one native scroll bar, or over the corner between two, and shows
// the skin's picture of it. It only shows: the mouse passes through to the native bar below.
#pragma once

#include "QVCommonCtrlDef.h"
#include "ScrollGeometry.h"

namespace _qv_commonctrl {

enum class OverlayKind { Vertical, Horizontal, Corner };

// What an overlay shows.
struct OverlayPicture {
    ScrollBarShape shape;
    ScrollPart hot = ScrollPart::None;
    ScrollPart pressed = ScrollPart::None;
    int ground = -1; // of a corner: a colour index; -1 as the bars

    bool operator==(const OverlayPicture&) const = default;
};

class ScrollOverlay {
  public:
    ScrollOverlay(HWND target, OverlayKind kind);
    ~ScrollOverlay();
    ScrollOverlay(const ScrollOverlay&) = delete;
    ScrollOverlay& operator=(const ScrollOverlay&) = delete;

    // Lays the overlay over a rectangle (screen co-ordinates) just above the target, and paints at once what
    // has changed. An empty rectangle hides it.
    void Show(const CRect& screenRect, const OverlayPicture& picture);
    void Hide();
    void Repaint();

  private:
    static LRESULT CALLBACK WindowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateWindowOnce();
    bool IsJustAboveTarget() const;
    void OnPaint();

    HWND m_target;
    OverlayKind m_kind;
    HWND m_wnd = nullptr;
    HWND m_parent = nullptr; // what it was created below; a target may move to another parent
    CRect m_rect;            // as last shown, screen co-ordinates
    OverlayPicture m_picture;
};

} // namespace _qv_commonctrl
