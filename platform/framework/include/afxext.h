// Entry header: control bars and extension modules.
#pragma once

#include "afxcmn.h"
#include "afx/ToolBar.h"
