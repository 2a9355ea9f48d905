// CSliderCtrl: its class information; all functions are messages.
#include "afx/SliderCtrl.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
