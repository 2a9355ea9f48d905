// QVPathSettings.h: the check of the working folders at the host's start.
#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

// Runs the path settings (CQVSetResPath, without a parent) when the resource folder stored as profile text
// "PathSet"/"ResPath" is not there: none stored, or neither a file nor a folder of that path exists. The
// media folder ("MediaPath") is not looked at. Returns when the user has answered; after a cancel the next
// call asks again. To be called at the host's start, on the user-interface thread.
QVCOMMONWND_API void QV_InitResPath();

} // namespace _qv_commonwnd
