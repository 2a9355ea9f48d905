#include "afxwin.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_LISTBOXW, nullptr, style, rect, parent, id);
}

int CListBox::SetCurSel(int index) {
    return static_cast<int>(::SendMessageW(m_hWnd, LB_SETCURSEL, static_cast<WPARAM>(index), 0));
}

int CListBox::AddString(LPCTSTR text) {
    return static_cast<int>(::SendMessageW(m_hWnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CListBox::InsertString(int index, LPCTSTR text) {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CListBox::GetTextLen(int index) const {
    return static_cast<int>(::SendMessageW(m_hWnd, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0));
}

void CListBox::GetText(int index, CString& text) const {
    text.Empty();
    const int length = GetTextLen(index);
    if (length <= 0)
        return;
    ::SendMessageW(m_hWnd, LB_GETTEXT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
}

DWORD_PTR CListBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(::SendMessageW(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(index), 0));
}

int CListBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

int CListBox::GetItemRect(int index, LPRECT rect) const {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

int CListBox::SetTopIndex(int index) {
    return static_cast<int>(::SendMessageW(m_hWnd, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0));
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const {
    const LRESULT hit = ::SendMessageW(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(hit) != 0;
    return LOWORD(hit);
}
