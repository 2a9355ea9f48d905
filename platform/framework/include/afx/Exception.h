// CException, the root of all exceptions.
//
// Exceptions are thrown by pointer and released by Delete, as the framework has always done. None of them
// leaves the framework: window procedures and hooks catch what their handlers let go.
//
//     try {
//         names.GetAt(index);
//     } catch (CInvalidArgException* e) {
//         e->Delete();
//     }
//
// The objects of CMemoryException, CInvalidArgException and CResourceException are static, so that throwing
// needs no memory: Delete does nothing to them and may be called anyway.
#pragma once

#include "Object.h"

class AFXFRAME_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
  public:
    // bAutoDelete: TRUE when the object is on the heap and Delete shall free it.
    explicit CException(BOOL bAutoDelete = TRUE);
    void Delete();
    // Writes a text of at most nMaxError characters with its terminator; FALSE when there is none to write.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;
    // Shows the text in a message box; returns the box's answer, 0 when there is no text.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

  private:
    BOOL m_bAutoDelete;
};
