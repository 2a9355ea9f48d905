// CScrollBar: its class information; all functions are platform calls.
#include "afx/ScrollBar.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
