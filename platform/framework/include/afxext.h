// Control bars: CToolBar, a tool bar window that sends its notifications to its owner.
#pragma once

#include "afxcmn.h"

// For subclassing a tool bar of the system as well as for making one: all functions are those of the control.
class AFXFRAME_API CToolBar : public CToolBarCtrl {
    DECLARE_DYNAMIC(CToolBar)
  public:
    CToolBar() = default;
    using CToolBarCtrl::Create;
    // A tool bar along the parent's top. FALSE on failure.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CCS_TOP, UINT nID = 0xE800);
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                  DWORD dwStyle = WS_CHILD | WS_VISIBLE | CCS_TOP, UINT nID = 0xE800);
    CToolBarCtrl& GetToolBarCtrl() { return *this; }
    UINT GetItemID(int nIndex) const; // 0 for a separator or no such button
    void GetItemRect(int nIndex, LPRECT lpRect) const { CToolBarCtrl::GetItemRect(nIndex, lpRect); }
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    CString GetButtonText(int nIndex) const;
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
};
