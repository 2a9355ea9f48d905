// LWSupportAPI.h: the second dictionary look-up.
#pragma once

#include <afxwin.h>

#if defined(QV_STATIC_LINK)
#define LWSUPPORT_API
#elif defined(LWSUPPORT_EXPORTS)
#define LWSUPPORT_API __declspec(dllexport)
#else
#define LWSUPPORT_API __declspec(dllimport)
#endif

// The text of a key in the current language, by the same rules as _qv_commonctrl::QV_LoadSysString.
// User-interface thread. Null or empty gives an empty string.
LWSUPPORT_API CString LWLoadString(LPCWSTR key);
