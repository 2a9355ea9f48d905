// CInvalidArgException: the one object that stands for impossible arguments.
#include "afx/InvalidArgException.h"
#include "SystemErrorText.h"

IMPLEMENT_DYNAMIC(CInvalidArgException, CException)

BOOL CInvalidArgException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return SystemErrorText(ERROR_INVALID_PARAMETER, lpszError, nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowInvalidArgException() {
    static CInvalidArgException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}
