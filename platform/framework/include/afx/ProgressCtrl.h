// CProgressCtrl: a progress bar.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
  public:
    CProgressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
    int OffsetPos(int nPos) { return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos))); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep))); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
    COLORREF SetBkColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBKCOLOR, 0, static_cast<LPARAM>(clr)));
    }
    COLORREF SetBarColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBARCOLOR, 0, static_cast<LPARAM>(clr)));
    }
};
