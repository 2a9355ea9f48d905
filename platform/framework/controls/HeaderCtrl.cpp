#include "afxctl_listview.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    return Item(HDM_GETORDERARRAY, iCount < 0 ? GetItemCount() : iCount, piArray);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    const HIMAGELIST list = pImageList ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list))));
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
