// CSliderCtrl: a slider.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)
  public:
    CSliderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(TRACKBAR_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return static_cast<int>(SendMessage(TBM_GETRANGEMIN)); }
    int GetRangeMax() const { return static_cast<int>(SendMessage(TBM_GETRANGEMAX)); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SendMessage(TBM_SETRANGEMIN, FALSE, nMin);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    int SetLineSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, nSize)); }
    int SetPageSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, nSize)); }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
};
