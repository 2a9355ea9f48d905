// Shortcuts (.lnk files) and where they lead. COM must be initialised on the calling thread.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// The path a shortcut leads to. Empty for a path whose extension is not exactly ".lnk" (".LNK" is none), for
// a file that is no shortcut and for one whose target has no path. Nothing is searched for and no window
// appears. A target that is a shortcut itself is not followed.
CString ResolveShortcut(const CString& path);

// What a chosen path stands for: for the extension ".lnk" in any letter case what ResolveShortcut answers, so
// that one in capitals leads nowhere; else the path itself.
CString ShortcutTargetOrSelf(const CString& path);

// Whether the path names a folder that a search finds. A drive root is none: no folder lists it.
bool IsFoundFolder(const CString& path);

} // namespace _qv_commonwnd
