// CWindowDC: a whole window with its frame, for the life of the object.
#pragma once

#include "DC.h"

// A null window is the screen. The constructor throws CResourceException* when the DC cannot be had.
class AFXFRAME_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
  public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

  protected:
    HWND m_hWnd; // null: the screen
};
