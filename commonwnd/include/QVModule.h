// QVModule.h: start, stop and the module-wide state of the library.
//
//     QV_InitCommonWnd();
//     ...
//     QV_ReleaseCommonWnd(); // before the library is unloaded
#pragma once

#include "QVCommonWndApi.h"
#include <QVDirCtrl.h>

namespace _qv_commonwnd {

// May be called at the host's start. Does nothing: the library sets itself up while it is loaded.
QVCOMMONWND_API void QV_InitCommonWnd();

// To be called by the host before it unloads the library (FreeLibrary) or ends, on the user-interface thread.
// Stores the folder shown by g_pDirListWnd as profile text "PathSet"/"FilePath" (the text stays as it is when
// the list's window is gone already), then destroys and deletes both kept windows and clears their slots.
// With both slots empty nothing happens; calling it again is fine.
QVCOMMONWND_API void QV_ReleaseCommonWnd();

// The library's own instance: where its dialog templates (31035 to 31104) are found. Set while the library is
// loaded, never changes afterwards; read only for hosts.
extern QVCOMMONWND_API HINSTANCE g_hCommonWndInst;

// Two windows that a host may keep between uses; null at load, and the library fills neither. Whoever fills a
// slot hands the object over: it must come from `new` and is deleted by QV_ReleaseCommonWnd, with its window
// if that still exists. A slot that is emptied by hand goes back to its filler. User-interface thread.
extern QVCOMMONWND_API _qv_commonctrl::CQVDirListCtrl* g_pDirListWnd;
extern QVCOMMONWND_API CWnd* g_pCommonWnd;

} // namespace _qv_commonwnd
