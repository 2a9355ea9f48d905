#include "afxctl_list.h"
#include "ItemMessages.h"

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
    if (!DispatchItemMessage(*this, message, lParam, result))
        return FALSE;
    if (pResult)
        *pResult = result;
    return TRUE;
}
