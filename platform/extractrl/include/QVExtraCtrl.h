// QVExtraCtrl.h - everything that QVExtraCtrlU.dll offers.
//
// All controls are used on the thread that created them. Their window classes are registered while the DLL is
// loaded and may be named in dialog templates; such a control gets a C++ object of its own, which GetDlgItem
// returns and which dies with the window. SubclassDlgItem and DDX_Control put the caller's object in its
// place.
#pragma once

#include "QVDBScale.h"
#include "QVTimecode.h"
#include "QVEditEx.h"
#include "QVNumberEditEx.h"
#include "QVTimeCodeEditEx.h"
#include "QVVUTableCtrl.h"
#include "QVRectTracker.h"
