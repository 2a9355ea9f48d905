// The system's text for one of its error codes.
#pragma once

#include <windows.h>

// What CException::GetErrorMessage does for an exception that stands for a system error: the text, cut to
// nMaxError characters with its terminator, and no help. FALSE when there is none to write.
BOOL SystemErrorText(DWORD nError, LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext);
