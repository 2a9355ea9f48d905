// CListBox: texts of items, owner-drawn list boxes, and keys that the owner asked to see.
#include "ItemMessages.h"
#include "text/FetchedText.h"
#include "afx/ListBox.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

void CListBox::GetText(int nIndex, CString& rString) const {
    rString = FetchedText(GetTextLen(nIndex), [&](LPWSTR buffer) { return GetText(nIndex, buffer); });
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
