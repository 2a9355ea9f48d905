// CTreeCtrl: items by more than one message to the tree view.
#include "handles/HandleOf.h"
#include "afx/TreeCtrl.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace {

constexpr int kFirstTextChars = 260;
constexpr int kLongestTextChars = 1 << 16;

TVITEM ItemOf(HTREEITEM hItem, UINT mask) {
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = mask | TVIF_HANDLE;
    return item;
}

} // namespace

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        Tree(TVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType), HandleOf(pImageList))));
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    return InsertItem(&insert);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    CString text;
    for (int chars = kFirstTextChars; chars <= kLongestTextChars; chars *= 4) {
        TVITEM item = ItemOf(hItem, TVIF_TEXT);
        item.cchTextMax = chars;
        item.pszText = text.GetBuffer(chars);
        *item.pszText = L'\0';
        const BOOL known = GetItem(&item);
        text.ReleaseBuffer(known ? -1 : 0);
        if (text.GetLength() < chars - 1)
            break;
    }
    return text;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    TVITEM item = ItemOf(hItem, TVIF_TEXT);
    item.pszText = const_cast<LPTSTR>(lpszItem);
    return SetItem(&item);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item = ItemOf(hItem, TVIF_PARAM);
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    TVITEM item = ItemOf(hItem, TVIF_PARAM);
    item.lParam = static_cast<LPARAM>(dwData);
    return SetItem(&item);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item = ItemOf(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    const BOOL known = GetItem(&item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return known;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    TVITEM item = ItemOf(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    return SetItem(&item);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    TVITEM item = ItemOf(hItem, TVIF_STATE);
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    TVITEM item = ItemOf(hItem, TVIF_STATE);
    item.state = nState;
    item.stateMask = nStateMask;
    return SetItem(&item);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item = ItemOf(hItem, TVIF_CHILDREN);
    return GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    static_assert(sizeof(RECT) >= sizeof(HTREEITEM));
    std::memcpy(lpRect, &hItem, sizeof hItem); // the message takes the item there
    return Tree(TVM_GETITEMRECT, static_cast<WPARAM>(bTextOnly), lpRect) != nullptr;
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO hit = {};
    hit.pt = pt;
    const HTREEITEM item = HitTest(&hit);
    if (pFlags)
        *pFlags = hit.flags;
    return item;
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(FromHandle(reinterpret_cast<HWND>(Tree(TVM_EDITLABELW, 0, hItem))));
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_GETEDITCONTROL))));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    const auto handle = reinterpret_cast<HIMAGELIST>(Tree(TVM_CREATEDRAGIMAGE, 0, hItem));
    if (!handle)
        return nullptr;
    auto* const list = new CImageList;
    list->Attach(handle);
    return list;
}
