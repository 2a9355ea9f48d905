// What the system's browse-for-folder dialog tells while it runs.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// The dialog's callback (BROWSEINFO::lpfn). `data`: the CQVPathDialog that runs it. Always 0.
int CALLBACK BrowseCallback(HWND dialog, UINT message, LPARAM lParam, LPARAM data);

// A window that is enabled while a folder or drive root is selected, and disabled otherwise; null for none.
// The chooser sets none: its OK button stays enabled whatever is selected.
extern CWnd* g_pBrowseOkWnd;

} // namespace _qv_commonwnd
