#include "afxctl_list.h"
#include "ItemMessages.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

void CListBox::GetText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length <= 0)
        return;
    const int stored = GetText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(stored < 0 ? 0 : stored);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const auto hit = static_cast<DWORD>(SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(hit);
    return LOWORD(hit);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    LRESULT result = 0;
    switch (message) {
    case WM_VKEYTOITEM:
        result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        if (!DispatchItemMessage(*this, message, lParam, result))
            return FALSE;
    }
    if (pResult)
        *pResult = result;
    return TRUE;
}
