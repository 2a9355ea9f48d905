// CListCtrl: items, places, columns and labels by more than one message to the list view.
#include "ItemMessages.h"
#include "handles/HandleOf.h"
#include "afx/ListCtrl.h"

IMPLEMENT_DYNCREATE(CListCtrl, CWnd)

namespace {

constexpr int kFirstTextChars = 128;
constexpr int kLongestTextChars = 1 << 20; // the control copies what fits: the buffer grows up to here

} // namespace

CImageList* CListCtrl::GetImageList(int nImageList) const {
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(LVM_GETIMAGELIST, static_cast<WPARAM>(nImageList))));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(LVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType),
                                                 reinterpret_cast<LPARAM>(HandleOf(pImageList)))));
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return SetItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    LVITEM item = {};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    LVITEM item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    return InsertItem(&item);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    return Ask(LVM_GETITEMTEXTW, nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    CString text;
    for (int chars = kFirstTextChars; chars <= kLongestTextChars; chars *= 2) {
        const int length = GetItemText(nItem, nSubItem, text.GetBuffer(chars), chars);
        text.ReleaseBuffer(length < 0 ? 0 : length);
        if (length < chars - 1)
            break;
    }
    return text;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Ask(LVM_SETITEMTEXTW, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

// A position is the item's index plus one, so that the first item is not null.
POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    if (item >= 0)
        pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(item, LVNI_SELECTED) + 1));
    return item;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode); // the message takes the part there
    return Ask(LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) {
    ref.top = iSubItem;
    ref.left = nArea;
    return Ask(LVM_GETSUBITEMRECT, iItem, static_cast<LPRECT>(ref));
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO hit = {};
    hit.pt = pt;
    const int item = HitTest(&hit);
    if (pFlags)
        *pFlags = hit.flags;
    return item;
}

CSize CListCtrl::SetIconSpacing(CSize size) {
    const auto former = static_cast<DWORD>(SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(size.cx, size.cy)));
    return CSize(LOWORD(former), HIWORD(former));
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem) {
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.fmt = nFormat;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    return static_cast<CHeaderCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER))));
}

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(
        FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, static_cast<WPARAM>(nItem)))));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL))));
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) || DispatchDrawItem(*this, message, lParam);
}
