// What the path settings make of the two typed folders; no window needed.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

enum class PathState { Missing, There };

enum class PathField { None, Resource, Media };

struct PathVerdict {
    CString message;                     // empty: both folders will do
    PathField restore = PathField::None; // the field that gets its former text back
};

// What is wrong with the two folders. A missing media folder puts its line after a line break, with or
// without a line before it, and is the one whose field is restored when both are missing.
PathVerdict JudgePaths(PathState resource, PathState media);

// Without the back-slashes at the end, drive roots ("C:\" becomes "C:") and paths of back-slashes only
// included.
CString WithoutTrailingBackslashes(CString path);

} // namespace _qv_commonwnd
