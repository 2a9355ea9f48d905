// ControlFactory.h: which skinned class wears which system control, and the colours of those that have none.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// A new object, subclassed to the control, or null when there is no skinned class for it. The caller owns it
// and deletes it after the window.
CWnd* MakeSkinnedControl(HWND control);

// Whether the window text of a control is a text of the template (and not what the user entered).
bool HasTemplateText(HWND control);

// The answer to WM_CTLCOLOR* by the skin: sets the colours of `dc` and returns the ground's brush, which the
// skin owns. `ctlColor` is one of CTLCOLOR_DLG and the others.
HBRUSH SkinCtlColor(HDC dc, HWND control, UINT ctlColor);

} // namespace _qv_commonctrl
