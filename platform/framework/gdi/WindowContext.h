// The device context of a window, as the classes that hold one get it.
#pragma once

#include "afx/Wnd.h"

// What get answers for the window; a null window is the screen. A window object that has lost its window must
// not paint on the screen instead: it throws CResourceException*, as for a context that cannot be had.
HDC WindowContext(const CWnd* pWnd, HDC(WINAPI* get)(HWND));
