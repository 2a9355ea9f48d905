// ControlSupport.h: what the skinned controls share beside painting: the scaffold of WM_PAINT, borders, class
// and style.
#pragma once

#include "paint/PaintKit.h"
#include "QVMemoDC.h"

namespace _qv_commonctrl {

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

bool IsWindowOfClass(HWND wnd, const wchar_t* className);

// DT_HIDEPREFIX while the window does not show the underlines of access keys.
inline UINT PrefixFormat(HWND wnd) {
    return ::SendMessageW(wnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL ? DT_HIDEPREFIX : 0;
}

// A rectangle of a size in the middle of another.
CRect CentredIn(const CRect& rect, CSize size);

// Paints lines over the window's border: what lies between the window's and the client's rectangle without
// the scroll bars, up to two lines wide. `outer` and `inner` are colour indexes; a border of one line takes
// `inner`.
void PaintBorder(HWND wnd, int outer, int inner);

} // namespace _qv_commonctrl
