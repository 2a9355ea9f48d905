// QVDpi.h: lengths in pixels at 96 DPI, scaled to what a window is shown at.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// Scales a length in pixels at 96 DPI to `dpi`, rounded half away from zero. 0 and 96 are the identity.
QVCOMMONCTRL_API int QV_ScaleForDpi(int px96, UINT dpi);

// The DPI of a window's monitor; 96 when the window is null or the system cannot tell.
QVCOMMONCTRL_API UINT QV_GetWindowDpi(HWND wnd);

// QV_ScaleForDpi with the window's DPI.
QVCOMMONCTRL_API int QV_ScalePx(HWND wnd, int px96);

} // namespace _qv_commonctrl
