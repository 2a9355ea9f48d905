// How much of a control's text stands on the screen.
#pragma once

#include <windows.h>

namespace qvtest {

// The width of the text that a control has, in the control's font, every character of it; pixels.
int widthOfText(HWND control);

// The width of what is painted in a control: from its first to behind its last column that is not all ground
// (the colour of the corner); pixels, 0 for a plain area. The control must be painted already.
int widthOfInk(HWND control);

} // namespace qvtest
