// CHeaderCtrl: what is more than one message to the header.
#include "ItemMessages.h"
#include "handles/HandleOf.h"
#include "afx/HeaderCtrl.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    return Item(HDM_GETORDERARRAY, iCount < 0 ? GetItemCount() : iCount, piArray);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        SendMessage(HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(HandleOf(pImageList)))));
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) || DispatchDrawItem(*this, message, lParam);
}
