// CException: its text, and how the user is told.
#include "afx/Exception.h"
#include "afx/WinApp.h"

IMPLEMENT_DYNAMIC(CException, CObject)

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {
}

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (lpszError && nMaxError)
        *lpszError = L'\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    constexpr UINT kTextChars = 512;
    wchar_t text[kTextChars];
    if (GetErrorMessage(text, kTextChars))
        return AfxMessageBox(text, nType);
    return nMessageID ? AfxMessageBox(nMessageID, nType) : 0;
}
