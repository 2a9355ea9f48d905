// CMemoryException: the one object that stands for memory that ran out.
#include "afx/MemoryException.h"
#include "SystemErrorText.h"

IMPLEMENT_DYNAMIC(CMemoryException, CException)

BOOL CMemoryException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    return SystemErrorText(ERROR_NOT_ENOUGH_MEMORY, lpszError, nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowMemoryException() {
    static CMemoryException exception(FALSE);
    throw &exception; // NOLINT(misc-throw-by-value-catch-by-reference): the framework throws pointers
}
