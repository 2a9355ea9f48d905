// Common controls.
#pragma once

#include "afxwin.h"
#include "afximagelist.h"
#include "afxctl_listview.h"
#include "afxctl_tree.h"
#include "afxctl_bars.h"
#include "afxctl_comboex.h"
