// QVReplaceWnd.h: skinned scroll bars over any window with native ones (WS_HSCROLL, WS_VSCROLL).
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// What is known of a window whose scroll bars are replaced.
struct QVReplaceData {
    HWND hWnd = nullptr;
    BOOL bVert = FALSE; // a vertical bar is showing
    BOOL bHorz = FALSE; // a horizontal bar is showing
    CRect rcVert;       // its rectangle, window co-ordinates
    CRect rcHorz;
};

// Draws the window's own scroll bars with the skin and gives them the native behaviour (thumb drag, page,
// arrows, repeat, wheel, disabled). The window may be any list, tree, edit or list box of this thread. TRUE
// also when it is replaced already; FALSE for a window of another thread or process or no window at all.
QVCOMMONCTRL_API BOOL QV_ReplaceWnd(HWND wnd);

// Says which colour of the skin the corner has where both bars meet: that of the rows, for instance, of which it then
// looks like a part. -1, as it is at first, is the ground of the bars (QVCLR_SCROLL_TRACK). Whoever replaces the bars
// owns the corner with them: nobody else need paint it. FALSE when the window is not replaced.
QVCOMMONCTRL_API BOOL QV_SetReplaceCorner(HWND wnd, int colorIndex);

// Gives the native bars back. FALSE when the window was not replaced. A destroyed window releases itself.
QVCOMMONCTRL_API BOOL QV_UnReplaceWnd(HWND wnd);

// Fills `data` with the bars' present state. FALSE, and `data` untouched, when the window is not replaced.
QVCOMMONCTRL_API BOOL QV_GetReplaceData(HWND wnd, QVReplaceData& data);

} // namespace _qv_commonctrl
