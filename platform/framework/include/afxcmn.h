// Entry header: common controls and image lists.
#pragma once

#include "afxwin.h"
#include "afx/ComboBoxEx.h"
#include "afx/HeaderCtrl.h"
#include "afx/ImageList.h"
#include "afx/ListCtrl.h"
#include "afx/ProgressCtrl.h"
#include "afx/SliderCtrl.h"
#include "afx/ToolBarCtrl.h"
#include "afx/ToolTipCtrl.h"
#include "afx/TreeCtrl.h"
