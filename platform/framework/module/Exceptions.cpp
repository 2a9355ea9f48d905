// The exceptions of the windowless classes.
#include "afxexcept.h"
#include "afxstr.h"

#include <cwchar>

namespace {

BOOL SystemText(DWORD nError, LPTSTR lpszError, UINT nMaxError) {
    if (!lpszError || nMaxError == 0)
        return FALSE;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          nError, 0, lpszError, nMaxError, nullptr);
    if (length == 0)
        lpszError[0] = L'\0';
    return length != 0;
}

} // namespace

IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)

BOOL CMemoryException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    return SystemText(ERROR_NOT_ENOUGH_MEMORY, lpszError, nMaxError);
}

BOOL CInvalidArgException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    return SystemText(ERROR_INVALID_PARAMETER, lpszError, nMaxError);
}

BOOL CResourceException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    return SystemText(ERROR_NO_SYSTEM_RESOURCES, lpszError, nMaxError);
}

void AFXAPI AfxThrowMemoryException() {
    static CMemoryException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}

void AFXAPI AfxThrowInvalidArgException() {
    static CInvalidArgException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}

void AFXAPI AfxThrowResourceException() {
    static CResourceException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}
