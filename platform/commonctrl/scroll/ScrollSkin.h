// ScrollSkin.h: what makes one window's scroll bars skinned.
#pragma once

#include "QVReplaceWnd.h"
#include "SkinnedBar.h"

namespace _qv_commonctrl {

// The native bars stay where they are and do all the work: tracking, auto-repeat, the menu, 32-bit positions.
// They are covered by overlays that show their state with the skin and let the mouse through. The object
// hangs on the window by a procedure above the window's own and dies with it.
class ScrollSkin {
  public:
    // Null when the window cannot be subclassed (another thread's).
    static ScrollSkin* Attach(HWND wnd);
    // The object of a window of the calling thread; null when it has none.
    static ScrollSkin* Find(HWND wnd);
    // Shows every replaced window of the calling thread with the present skin.
    static void RefreshAll();

    // Gives the native bars back and deletes the object.
    void Detach();
    void Describe(QVReplaceData& data);
    // -1: the ground of the bars.
    void SetCornerColor(int colorIndex);

  private:
    explicit ScrollSkin(HWND wnd);

    static bool HookProcedure(HWND wnd);
    static void UnhookProcedure(HWND wnd);
    static bool IsAttached(HWND wnd, const ScrollSkin* skin); // FALSE once the object is gone
    static LRESULT CALLBACK WindowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnNcButtonDown(SkinnedBar& bar, UINT message, WPARAM wParam, LPARAM lParam);
    void OnNcMouseMove(WPARAM hitCode, LPARAM screenPoint);
    void OnHotTimer();

    // What of the native bars can be read without asking another process. Painting looks for changes here
    // first.
    struct Glance {
        LONG_PTR style = 0; // 0: nothing has been read yet
        CRect window;
        SCROLLINFO vertical = {};
        SCROLLINFO horizontal = {};

        bool operator==(const Glance& other) const;
    };

    Glance Look() const;
    void SynchroniseIfChanged();
    void Synchronise(); // reads the native bars and shows what has changed
    void SynchroniseSoon();
    CRect CornerRect() const;
    void Refresh();

    HWND m_wnd;
    WNDPROC m_below = nullptr; // what handles the messages that are not ours
    SkinnedBar m_vertical;
    SkinnedBar m_horizontal;
    ScrollOverlay m_corner;
    int m_cornerColor = -1;
    Glance m_seen; // when the bars were last shown
    bool m_addedClipSiblings = false;
    bool m_synchroniseAsked = false;
    bool m_synchronising = false;
};

} // namespace _qv_commonctrl
