#include "QVDpi.h"

#include "Guards.h"

namespace _qv_commonctrl {

namespace {

// The system has the per-window question since Windows 10; before, all windows share the screen's DPI.
UINT AskSystem(HWND wnd) {
    using AskWindow = UINT(WINAPI*)(HWND);
    static const auto askWindow = reinterpret_cast<AskWindow>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    return askWindow ? askWindow(wnd) : static_cast<UINT>(GetDeviceCaps(ScreenDc(), LOGPIXELSX));
}

} // namespace

int QV_ScaleForDpi(int px96, UINT dpi) {
    if (dpi == 0 || dpi == USER_DEFAULT_SCREEN_DPI)
        return px96;
    const long long product = static_cast<long long>(px96) * dpi;
    const long long half = product < 0 ? -USER_DEFAULT_SCREEN_DPI / 2 : USER_DEFAULT_SCREEN_DPI / 2;
    return static_cast<int>((product + half) / USER_DEFAULT_SCREEN_DPI);
}

UINT QV_GetWindowDpi(HWND wnd) {
    const UINT dpi = wnd && IsWindow(wnd) ? AskSystem(wnd) : 0;
    return dpi ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int QV_ScalePx(HWND wnd, int px96) {
    return QV_ScaleForDpi(px96, QV_GetWindowDpi(wnd));
}

} // namespace _qv_commonctrl
