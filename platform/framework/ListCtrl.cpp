#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace {

constexpr int kFirstTextLength = 128;
constexpr int kLongestText = 1 << 20; // the control copies at most what the buffer holds: grow up to here

LRESULT Send(const CWnd& list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendMessageW(list.m_hWnd, message, wParam, lParam);
}

template <class T> LPARAM Pointer(const T* value) {
    return reinterpret_cast<LPARAM>(value);
}

} // namespace

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_LISTVIEWW, nullptr, style, rect, parent, id);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const {
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(Send(*this, LVM_GETHEADER))));
}

int CListCtrl::InsertColumn(int index, LPCTSTR heading, int format, int width, int subItem) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.fmt = format;
    column.pszText = const_cast<wchar_t*>(heading);
    if (width != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = width;
    }
    if (subItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = subItem;
    }
    return InsertColumn(index, &column);
}

int CListCtrl::InsertColumn(int index, const LVCOLUMNW* column) {
    return static_cast<int>(Send(*this, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), Pointer(column)));
}

BOOL CListCtrl::SetColumn(int index, const LVCOLUMNW* column) {
    return static_cast<BOOL>(Send(*this, LVM_SETCOLUMNW, static_cast<WPARAM>(index), Pointer(column)));
}

BOOL CListCtrl::SetColumnWidth(int index, int width) {
    return static_cast<BOOL>(
        Send(*this, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(index), MAKELPARAM(width, 0)));
}

int CListCtrl::GetColumnWidth(int index) const {
    return static_cast<int>(Send(*this, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(index)));
}

int CListCtrl::InsertItem(int index, LPCTSTR text) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = index;
    item.pszText = const_cast<wchar_t*>(text);
    return InsertItem(&item);
}

int CListCtrl::InsertItem(const LVITEMW* item) {
    return static_cast<int>(Send(*this, LVM_INSERTITEMW, 0, Pointer(item)));
}

BOOL CListCtrl::SetItem(const LVITEMW* item) {
    return static_cast<BOOL>(Send(*this, LVM_SETITEMW, 0, Pointer(item)));
}

BOOL CListCtrl::GetItem(LVITEMW* item) const {
    return static_cast<BOOL>(Send(*this, LVM_GETITEMW, 0, Pointer(item)));
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text) {
    LVITEMW item = {};
    item.iSubItem = subItem;
    item.pszText = const_cast<wchar_t*>(text);
    return static_cast<BOOL>(Send(*this, LVM_SETITEMTEXTW, static_cast<WPARAM>(index), Pointer(&item)));
}

CString CListCtrl::GetItemText(int index, int subItem) const {
    CString text;
    for (int size = kFirstTextLength; size <= kLongestText; size *= 2) {
        LVITEMW item = {};
        item.iSubItem = subItem;
        item.cchTextMax = size;
        item.pszText = text.GetBuffer(size);
        const int length =
            static_cast<int>(Send(*this, LVM_GETITEMTEXTW, static_cast<WPARAM>(index), Pointer(&item)));
        text.ReleaseBuffer(length);
        if (length < size - 1)
            break;
    }
    return text;
}

DWORD_PTR CListCtrl::GetItemData(int index) const {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data) {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    item.lParam = static_cast<LPARAM>(data);
    return SetItem(&item);
}

UINT CListCtrl::GetItemState(int index, UINT mask) const {
    return static_cast<UINT>(
        Send(*this, LVM_GETITEMSTATE, static_cast<WPARAM>(index), static_cast<LPARAM>(mask)));
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask) {
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    return static_cast<BOOL>(Send(*this, LVM_SETITEMSTATE, static_cast<WPARAM>(index), Pointer(&item)));
}

int CListCtrl::GetNextItem(int after, int flags) const {
    return static_cast<int>(Send(*this, LVM_GETNEXTITEM, static_cast<WPARAM>(after), MAKELPARAM(flags, 0)));
}

BOOL CListCtrl::EnsureVisible(int index, BOOL partialOk) {
    return static_cast<BOOL>(Send(*this, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), partialOk));
}

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT part) const {
    rect->left = static_cast<LONG>(part);
    return static_cast<BOOL>(Send(*this, LVM_GETITEMRECT, static_cast<WPARAM>(index), Pointer(rect)));
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int part, CRect& rect) const {
    rect.top = subItem;
    rect.left = part;
    return static_cast<BOOL>(Send(*this, LVM_GETSUBITEMRECT, static_cast<WPARAM>(index), Pointer(&rect)));
}

int CListCtrl::HitTest(LVHITTESTINFO* hit) const {
    return static_cast<int>(Send(*this, LVM_HITTEST, 0, Pointer(hit)));
}

DWORD CListCtrl::SetExtendedStyle(DWORD style) {
    return static_cast<DWORD>(Send(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

HIMAGELIST CListCtrl::SetImageList(HIMAGELIST images, int kind) {
    return reinterpret_cast<HIMAGELIST>(
        Send(*this, LVM_SETIMAGELIST, static_cast<WPARAM>(kind), Pointer(images)));
}

HIMAGELIST CListCtrl::GetImageList(int kind) const {
    return reinterpret_cast<HIMAGELIST>(Send(*this, LVM_GETIMAGELIST, static_cast<WPARAM>(kind)));
}
