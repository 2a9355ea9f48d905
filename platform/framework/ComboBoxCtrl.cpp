#include "afxctl_list.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length <= 0)
        return;
    const int stored = GetLBText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(stored < 0 ? 0 : stored);
}

int CComboBox::SetMinVisibleItems(int iMinVisible) {
    return Ask(CB_SETMINVISIBLE, iMinVisible);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    LRESULT result = 0;
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return FALSE;
    }
    if (pResult)
        *pResult = result;
    return TRUE;
}
