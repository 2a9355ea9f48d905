// CUserException: thrown when the user has been told.
#include "afx/UserException.h"

IMPLEMENT_DYNAMIC(CUserException, CException)

CUserException::CUserException(BOOL bAutoDelete) : CException(bAutoDelete) {
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}
