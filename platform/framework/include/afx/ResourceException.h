// CResourceException: a system resource (device context, GDI object) could not be had.
#pragma once

#include "Exception.h"

class AFXFRAME_API CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
  public:
    explicit CResourceException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// Throws the one object of the class. Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowResourceException();
