// CUserException: thrown to stop an operation about which the user has been told already (data exchange uses
// it).
#pragma once

#include "Exception.h"

class AFXFRAME_API CUserException : public CException {
    DECLARE_DYNAMIC(CUserException)
  public:
    explicit CUserException(BOOL bAutoDelete = TRUE);
};

// Throws one on the heap. Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowUserException();
