// CMemoryException: memory ran out, or a size is larger than the type can hold.
#pragma once

#include "Exception.h"

class AFXFRAME_API CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
  public:
    explicit CMemoryException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// Throws the one object of the class. Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowMemoryException();
