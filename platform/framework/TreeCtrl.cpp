#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace {

constexpr int kLongestText = 4096; // a tree shows at most 260 characters; more than that is never lost here

template <class T> LPARAM Pointer(const T* value) {
    return reinterpret_cast<LPARAM>(value);
}

} // namespace

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_TREEVIEWW, nullptr, style, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTW* insert) {
    return reinterpret_cast<HTREEITEM>(::SendMessageW(m_hWnd, TVM_INSERTITEMW, 0, Pointer(insert)));
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after) {
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(text);
    return InsertItem(&insert);
}

BOOL CTreeCtrl::GetItem(TVITEMW* item) const {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_GETITEMW, 0, Pointer(item)));
}

BOOL CTreeCtrl::SetItem(const TVITEMW* item) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_SETITEMW, 0, Pointer(item)));
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    CString text;
    TVITEMW query = {};
    query.mask = TVIF_TEXT | TVIF_HANDLE;
    query.hItem = item;
    query.cchTextMax = kLongestText;
    query.pszText = text.GetBuffer(kLongestText);
    *query.pszText = L'\0';
    const BOOL known = GetItem(&query);
    text.ReleaseBuffer(known ? -1 : 0);
    return text;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text) {
    TVITEMW change = {};
    change.mask = TVIF_TEXT | TVIF_HANDLE;
    change.hItem = item;
    change.pszText = const_cast<wchar_t*>(text);
    return SetItem(&change);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    TVITEMW query = {};
    query.mask = TVIF_PARAM | TVIF_HANDLE;
    query.hItem = item;
    return GetItem(&query) ? static_cast<DWORD_PTR>(query.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    TVITEMW change = {};
    change.mask = TVIF_PARAM | TVIF_HANDLE;
    change.hItem = item;
    change.lParam = static_cast<LPARAM>(data);
    return SetItem(&change);
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const {
    return static_cast<UINT>(::SendMessageW(m_hWnd, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), mask));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const {
    return reinterpret_cast<HTREEITEM>(::SendMessageW(m_hWnd, TVM_GETNEXTITEM, code, Pointer(item)));
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_SELECTITEM, code, Pointer(item)));
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_EXPAND, code, Pointer(item)));
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_ENSUREVISIBLE, 0, Pointer(item)));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_SORTCHILDREN, 0, Pointer(item)));
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const {
    // The message takes the item in the rectangle that it fills.
    *reinterpret_cast<HTREEITEM*>(rect) = item;
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, TVM_GETITEMRECT, static_cast<WPARAM>(textOnly), Pointer(rect)));
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* hit) const {
    return reinterpret_cast<HTREEITEM>(::SendMessageW(m_hWnd, TVM_HITTEST, 0, Pointer(hit)));
}

HIMAGELIST CTreeCtrl::SetImageList(HIMAGELIST images, int kind) {
    return reinterpret_cast<HIMAGELIST>(
        ::SendMessageW(m_hWnd, TVM_SETIMAGELIST, static_cast<WPARAM>(kind), Pointer(images)));
}
