#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_HEADERW, nullptr, style, rect, parent, id);
}

BOOL CHeaderCtrl::GetItem(int index, HDITEMW* item) const {
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, HDM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::SetItem(int index, HDITEMW* item) {
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, HDM_SETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

int CHeaderCtrl::InsertItem(int index, HDITEMW* item) {
    return static_cast<int>(
        ::SendMessageW(m_hWnd, HDM_INSERTITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const {
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, HDM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}
