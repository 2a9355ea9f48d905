// CInvalidArgException: an argument is impossible, such as an index outside an array.
#pragma once

#include "Exception.h"

class AFXFRAME_API CInvalidArgException : public CException {
    DECLARE_DYNAMIC(CInvalidArgException)
  public:
    explicit CInvalidArgException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// Throws the one object of the class. Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowInvalidArgException();
