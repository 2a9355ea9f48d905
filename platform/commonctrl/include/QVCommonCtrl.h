// QVCommonCtrl.h: all of QVCommonCtrlU.dll.
#pragma once

#include "QVSkin.h"
#include "QVTimecodeFrameRate.h"
#include "QVDict.h"
#include "QVMemoDC.h"
#include "QVBaseCtrl.h"
#include "QVCaptionBand.h"
#include "QVBaseFrame.h"
#include "QVDialog.h"
#include "QVButton.h"
#include "QVStatic.h"
#include "QVEdit.h"
#include "QVComboBox.h"
#include "QVListControls.h"
#include "QVReplaceWnd.h"
#include "QVMenuEx.h"
#include "QVDirCtrl.h"
