// CComboBox: texts of items, and owner-drawn combo boxes.
#include "ItemMessages.h"
#include "text/FetchedText.h"
#include "afx/ComboBox.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString = FetchedText(GetLBTextLen(nIndex), [&](LPWSTR buffer) { return GetLBText(nIndex, buffer); });
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
