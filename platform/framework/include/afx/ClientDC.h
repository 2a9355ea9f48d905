// CClientDC: the client area of a window, for the life of the object.
#pragma once

#include "DC.h"

// A null window is the screen. The constructor throws CResourceException* when the DC cannot be had.
class AFXFRAME_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
  public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

  protected:
    HWND m_hWnd; // null: the screen
};
