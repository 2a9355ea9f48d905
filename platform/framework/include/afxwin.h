// The framework's window classes: everything but common controls and common dialogs.
#pragma once

#include "afx.h"
#include "afxstr.h"
#include "atltypes.h"
#include "afxcoll.h"
#include "afxgdi.h"
#include "afxstat_.h"
#include "afxmsg_.h"
#include "afxcmdt_.h"
#include "afxwnd_.h"
#include "afxdd_.h"
#include "afxdlg_.h"
#include "afxframe_.h"
#include "afxapp_.h"
#include "afxctl_std.h"
#include "afxctl_list.h"
