// QVCommonWndApi.h: linkage of the classes and functions of QVCommonWndU.dll.
#pragma once

#include <afxwin.h>

// All sources in one program (QV_STATIC_LINK): nothing is exported. While the DLL itself is built: exported.
// For everybody else: imported.
#if defined(QV_STATIC_LINK)
#define QVCOMMONWND_API
#elif defined(QVCOMMONWND_EXPORTS)
#define QVCOMMONWND_API __declspec(dllexport)
#else
#define QVCOMMONWND_API __declspec(dllimport)
#endif
