#include "afxwin.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_COMBOBOXW, nullptr, style, rect, parent, id);
}

int CComboBox::SetCurSel(int index) {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_SETCURSEL, static_cast<WPARAM>(index), 0));
}

int CComboBox::AddString(LPCTSTR text) {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::InsertString(int index, LPCTSTR text) {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::FindString(int startAfter, LPCTSTR text) const {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_FINDSTRING, static_cast<WPARAM>(startAfter),
                                           reinterpret_cast<LPARAM>(text)));
}

int CComboBox::FindStringExact(int startAfter, LPCTSTR text) const {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter),
                                           reinterpret_cast<LPARAM>(text)));
}

int CComboBox::SelectString(int startAfter, LPCTSTR text) {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_SELECTSTRING, static_cast<WPARAM>(startAfter),
                                           reinterpret_cast<LPARAM>(text)));
}

int CComboBox::GetLBTextLen(int index) const {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0));
}

void CComboBox::GetLBText(int index, CString& text) const {
    text.Empty();
    const int length = GetLBTextLen(index);
    if (length <= 0)
        return;
    ::SendMessageW(m_hWnd, CB_GETLBTEXT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
}

DWORD_PTR CComboBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(::SendMessageW(m_hWnd, CB_GETITEMDATA, static_cast<WPARAM>(index), 0));
}

int CComboBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

int CComboBox::GetItemHeight(int index) const {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_GETITEMHEIGHT, static_cast<WPARAM>(index), 0));
}

int CComboBox::SetItemHeight(int index, UINT height) {
    return static_cast<int>(::SendMessageW(m_hWnd, CB_SETITEMHEIGHT, static_cast<WPARAM>(index), height));
}
