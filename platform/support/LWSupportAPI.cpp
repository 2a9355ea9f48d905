#include "LWSupportAPI.h"

#include <QVDict.h>

CString LWLoadString(LPCWSTR key) {
    return _qv_commonctrl::QV_LoadSysString(key);
}
