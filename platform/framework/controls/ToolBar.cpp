#include "afxext.h"

IMPLEMENT_DYNAMIC(CToolBar, CToolBarCtrl)

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CToolBarCtrl::Create(dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    return Create(pParentWnd, dwStyle | dwCtrlStyle, nID);
}

UINT CToolBar::GetItemID(int nIndex) const {
    TBBUTTON button = {};
    return GetButton(nIndex, &button) ? static_cast<UINT>(button.idCommand) : 0;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    SetBitmapSize(sizeImage);
    SetButtonSize(sizeButton);
}

CString CToolBar::GetButtonText(int nIndex) const {
    return GetString(static_cast<int>(GetItemID(nIndex)));
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    TBBUTTONINFO info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT;
    info.pszText = const_cast<LPTSTR>(lpszText);
    return SetButtonInfo(static_cast<int>(GetItemID(nIndex)), &info);
}
