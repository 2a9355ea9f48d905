#include "MessageBoxRules.h"

#include <QVSkin.h>

#include <algorithm>

namespace _qv_commonwnd {

namespace {

int Grown(int question, int window, int limit) {
    return std::max(window, std::min(question, limit));
}

} // namespace

CSize MessageBoxSize(CSize question, CSize window, CSize workArea, UINT dpi) {
    const int sides = _qv_commonctrl::QV_ScaleForDpi(kQuestionSidesPx, dpi);
    const int topAndBottom = _qv_commonctrl::QV_ScaleForDpi(kQuestionTopAndBottomPx, dpi);
    return CSize(Grown(question.cx + sides, window.cx, workArea.cx),
                 Grown(question.cy + topAndBottom, window.cy, workArea.cy));
}

CSize MeasureQuestion(HWND control, const CString& text) {
    const HDC dc = control && !text.IsEmpty() ? ::GetDC(control) : nullptr;
    if (!dc)
        return CSize(0, 0);
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ former = font ? ::SelectObject(dc, font) : nullptr;
    CRect rect(0, 0, 0, 0);
    ::DrawTextW(dc, text, text.GetLength(), &rect, DT_CALCRECT);
    if (former)
        ::SelectObject(dc, former);
    ::ReleaseDC(control, dc);
    return rect.Size();
}

CRect WorkAreaOf(HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    if (::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info))
        return CRect(info.rcWork);
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

} // namespace _qv_commonwnd
