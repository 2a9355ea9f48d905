// The arrangement of the system's controls below the painted caption.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// Makes the frame high enough for the caption, moves the controls below it and puts the folder import panel where the
// options say. `options`: QVFileDialogOption bits. `importPanel`: null for none. Controls that the dialog lacks are
// left out; a null frame does nothing.
void ArrangeControls(HWND frame, DWORD options, HWND importPanel);

} // namespace _qv_commonwnd
