#include "ControlSupport.h"

#include <algorithm>

namespace _qv_commonctrl {

bool IsWindowOfClass(HWND wnd, const wchar_t* className) {
    constexpr int kMostUnits = 64; // longer names are none of those that are asked for
    wchar_t name[kMostUnits] = L"";
    ::GetClassNameW(wnd, name, kMostUnits);
    return ::lstrcmpiW(name, className) == 0;
}

CRect CentredIn(const CRect& rect, CSize size) {
    const CPoint place(rect.left + (rect.Width() - size.cx) / 2, rect.top + (rect.Height() - size.cy) / 2);
    return CRect(place, size);
}

void PaintBorder(HWND wnd, int outer, int inner) {
    CRect window;
    ::GetWindowRect(wnd, window);
    CRect client;
    ::GetClientRect(wnd, client);
    ::MapWindowPoints(wnd, HWND_DESKTOP, reinterpret_cast<POINT*>(&client), 2);
    // Scroll bars stand at the right and the bottom (or the left, in mirrored windows), so the top edge tells
    // how wide the border is.
    const int border = static_cast<int>(client.top - window.top);
    if (border <= 0)
        return;
    const int line = QV_ScalePx(wnd, 1);
    CWindowDC dc(CWnd::FromHandle(wnd));
    CRect area(window);
    area.MoveToXY(0, 0);
    if (border >= 2 * line) {
        DrawFrameLines(&dc, area, QV_GetSysColor(outer), line);
        area.DeflateRect(line, line);
        DrawFrameLines(&dc, area, QV_GetSysColor(inner), std::min(line, border - line));
        return;
    }
    DrawFrameLines(&dc, area, QV_GetSysColor(inner), border);
}

} // namespace _qv_commonctrl
