// The exceptions that the windowless classes throw, by pointer, as the framework has always done:
//
//     try {
//         names.GetAt(index);
//     } catch (CInvalidArgException* e) {
//         e->Delete();
//     }
//
// The objects are static, so that throwing needs no memory; Delete does nothing to them and may be called
// anyway.
#pragma once

#include "afx.h"

// Memory ran out, or a size is larger than the type can hold.
class AFXFRAME_API CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
  public:
    explicit CMemoryException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// An argument is impossible, such as an index outside an array.
class AFXFRAME_API CInvalidArgException : public CException {
    DECLARE_DYNAMIC(CInvalidArgException)
  public:
    explicit CInvalidArgException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// A system resource (device context, GDI object) could not be had.
class AFXFRAME_API CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
  public:
    explicit CResourceException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

// Throws the shared CResourceException*. Any thread.
[[noreturn]] AFXFRAME_API void AFXAPI AfxThrowResourceException();
