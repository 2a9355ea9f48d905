// QVCommonCtrlDef.h: linkage of the classes and functions of QVCommonCtrlU.dll.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#if defined(QV_STATIC_LINK)
#define QVCOMMONCTRL_API
#elif defined(QVCOMMONCTRL_EXPORTS)
#define QVCOMMONCTRL_API __declspec(dllexport)
#else
#define QVCOMMONCTRL_API __declspec(dllimport)
#endif
