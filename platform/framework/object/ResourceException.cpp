// CResourceException: the one object that stands for resources that the system refused.
#include "afx/ResourceException.h"
#include "SystemErrorText.h"

IMPLEMENT_DYNAMIC(CResourceException, CException)

BOOL CResourceException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return SystemErrorText(ERROR_NO_SYSTEM_RESOURCES, lpszError, nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowResourceException() {
    static CResourceException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}
