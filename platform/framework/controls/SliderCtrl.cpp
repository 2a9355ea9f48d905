#include "afxctl_bars.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
