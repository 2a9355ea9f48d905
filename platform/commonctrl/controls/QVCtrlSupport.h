// QVCtrlSupport.h: what the skinned controls share besides painting: keeping the system from drawing, the
// mouse above a control, the scaffold of WM_PAINT.
#pragma once

#include "QVMemoDC.h"
#include "paint/QVPaintKit.h"

namespace _qv_commonctrl {

// Keeps a control from drawing its native look while a message that draws at once is in work. Use it only
// round messages that tell the parent nothing: the window counts as hidden meanwhile.
class NativePaintPause {
  public:
    explicit NativePaintPause(HWND wnd) : m_wnd(wnd), m_paused(::IsWindowVisible(wnd) != FALSE) {
        if (m_paused)
            ::DefWindowProcW(m_wnd, WM_SETREDRAW, FALSE, 0);
    }
    NativePaintPause(const NativePaintPause&) = delete;
    NativePaintPause& operator=(const NativePaintPause&) = delete;
    ~NativePaintPause() {
        if (!m_paused || !::IsWindow(m_wnd))
            return;
        ::DefWindowProcW(m_wnd, WM_SETREDRAW, TRUE, 0);
        ::RedrawWindow(m_wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }

  private:
    HWND m_wnd;
    bool m_paused; // a window inside a hidden one draws nothing anyway
};

// Whether the pointer is above a window.
class HotTracker {
  public:
    bool IsHot() const { return m_hot; }
    // Looks at every message; true when the state has changed.
    bool Follow(HWND wnd, UINT message) {
        const bool former = m_hot;
        if (message == WM_MOUSEMOVE && !m_hot) {
            TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, wnd, 0};
            m_hot = ::TrackMouseEvent(&track) != FALSE;
        } else if (message == WM_MOUSELEAVE || (message == WM_ENABLE && !::IsWindowEnabled(wnd))) {
            m_hot = false;
        }
        return m_hot != former;
    }

  private:
    bool m_hot = false;
};

// Answers WM_PAINT (and WM_PRINTCLIENT, or a WM_PAINT that brings its device context) with one copied
// picture: `paint(CDC*, CRect client)`.
template <class Paint> void PaintBuffered(HWND wnd, WPARAM wParam, Paint&& paint) {
    CRect client;
    ::GetClientRect(wnd, client);
    if (wParam) {
        paint(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), client);
        return;
    }
    CPaintDC target(CWnd::FromHandle(wnd));
    if (client.IsRectEmpty())
        return;
    CQVMemoDC picture(&target, client);
    paint(static_cast<CDC*>(&picture), client);
}

inline DWORD WindowStyle(HWND wnd) {
    return static_cast<DWORD>(::GetWindowLongPtrW(wnd, GWL_STYLE));
}

// DT_HIDEPREFIX while the window does not show the underlines of access keys.
inline UINT PrefixFormat(HWND wnd) {
    return ::SendMessageW(wnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL ? DT_HIDEPREFIX : 0;
}

// Paints lines over the window's border: everything between the window's and the client's rectangle but the
// scroll bars, at most `lines` wide. `outer` and `inner` are colour indexes; one line only takes `inner`.
void PaintBorder(HWND wnd, int outer, int inner);

} // namespace _qv_commonctrl
