#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

BOOL CComboBoxEx::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_COMBOBOXEXW, nullptr, style, rect, parent, id);
}

int CComboBoxEx::InsertItem(const COMBOBOXEXITEMW* item) {
    return static_cast<int>(::SendMessageW(m_hWnd, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CComboBoxEx::GetItem(COMBOBOXEXITEMW* item) const {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}
