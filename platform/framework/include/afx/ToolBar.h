// CToolBar: a control bar, a tool bar window that sends its notifications to its owner.
//
//     CToolBar places;
//     places.SubclassWindow(hBarOfTheSystem);
//     const int count = places.GetToolBarCtrl().GetButtonCount();
#pragma once

#include "ToolBarCtrl.h"

// The id of a program's tool bar.
constexpr UINT AFX_IDW_TOOLBAR = 0xE800;

// For subclassing a tool bar of the system as well as for making one. What the control itself can do is
// reached through GetToolBarCtrl.
class AFXFRAME_API CToolBar : public CWnd {
    DECLARE_DYNAMIC(CToolBar)
  public:
    CToolBar() = default;
    // A tool bar along the parent's top. FALSE on failure. rcBorders is accepted and without effect.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CCS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CCS_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);
    // The control of this window, for the life of this object; it borrows the window and must not be
    // detached.
    CToolBarCtrl& GetToolBarCtrl() const;
    UINT GetItemID(int nIndex) const; // 0 for a separator or no such button
    void GetItemRect(int nIndex, LPRECT lpRect) const { GetToolBarCtrl().GetItemRect(nIndex, lpRect); }
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    CString GetButtonText(int nIndex) const;
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);

  private:
    mutable CToolBarCtrl m_control; // not attached: has the window's handle only
};
