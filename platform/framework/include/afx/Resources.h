// Which module a resource comes from.
#pragma once

#include "ModuleState.h"

// The program's instance and the module in which a resource look-up starts. Never null.
AFXFRAME_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFXFRAME_API HINSTANCE AFXAPI AfxGetResourceHandle();
// Null puts the program's instance back.
AFXFRAME_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The module that holds a resource: the current resource handle, then the extension modules (the one loaded
// last first), then system modules, then the framework. When nobody has it, the current resource handle.
AFXFRAME_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// Loads a string of the chain above; returns its length in characters without terminator, 0 when missing.
AFXFRAME_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
