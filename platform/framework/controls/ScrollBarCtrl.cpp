#include "afxctl_std.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
