// Registration of window classes.
#pragma once

#include "Definitions.h"

// Registers (once) a window class of the framework's procedure with these properties and returns its name, a
// static text of the calling thread, valid until the next call. Null on failure.
AFXFRAME_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
// Registers a class unless its name is registered for the instance already. Classes registered through here
// are unregistered with the module that registered them.
AFXFRAME_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
