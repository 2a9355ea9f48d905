// The folder that the profile remembers for the file dialog.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// A remembered folder that is gone becomes the first drive's root: with it the system's dialog would start in a place
// of its own choice. Nothing is stored where nothing was remembered.
void RepairRememberedFolder();

// Empty when nothing is remembered or it is no folder.
CString RememberedFolder();

} // namespace _qv_commonwnd
