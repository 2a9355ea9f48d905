// CToolBar: creation, the control inside, and buttons by their index.
#include "afx/ToolBar.h"

IMPLEMENT_DYNAMIC(CToolBar, CWnd)

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAMEW, nullptr, dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    return TRUE;
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect, UINT nID) {
    return Create(pParentWnd, dwStyle | dwCtrlStyle, nID);
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const {
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

UINT CToolBar::GetItemID(int nIndex) const {
    TBBUTTON button = {};
    return GetToolBarCtrl().GetButton(nIndex, &button) ? static_cast<UINT>(button.idCommand) : 0;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    GetToolBarCtrl().SetBitmapSize(sizeImage);
    GetToolBarCtrl().SetButtonSize(sizeButton);
}

CString CToolBar::GetButtonText(int nIndex) const {
    return GetToolBarCtrl().GetString(static_cast<int>(GetItemID(nIndex)));
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    TBBUTTONINFO info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT;
    info.pszText = const_cast<LPTSTR>(lpszText);
    return GetToolBarCtrl().SetButtonInfo(static_cast<int>(GetItemID(nIndex)), &info);
}
