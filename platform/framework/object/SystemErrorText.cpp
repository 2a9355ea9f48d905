// The system's text for one of its error codes.
#include "SystemErrorText.h"

BOOL SystemErrorText(DWORD nError, LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) {
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (!lpszError || nMaxError == 0)
        return FALSE;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          nError, 0, lpszError, nMaxError, nullptr);
    if (length == 0)
        lpszError[0] = L'\0';
    return length != 0;
}
