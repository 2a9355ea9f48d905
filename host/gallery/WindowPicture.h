// WindowPicture.h: a window as a picture file.
#pragma once

#include <afxwin.h>

// Writes a window with its frame and controls, as it was last painted, as a PNG file. The window must be of this
// process. False when it cannot be read or the file not be written.
bool SaveWindowPicture(HWND window, LPCWSTR path);
