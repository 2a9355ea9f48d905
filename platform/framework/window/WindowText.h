// The text of a window, whatever its length.
#pragma once

#include "afx/String.h"

// Empty without a window.
CString WindowText(HWND hWnd);
