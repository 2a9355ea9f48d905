// CPaintDC: BeginPaint to EndPaint; only in answer to WM_PAINT.
#pragma once

#include "DC.h"

// The constructor throws CResourceException* when the DC cannot be had.
class AFXFRAME_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
  public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps; // what is to be painted

  protected:
    HWND m_hWnd;
};
