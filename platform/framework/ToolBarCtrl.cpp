#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BOOL CToolBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    if (!CWnd::Create(TOOLBARCLASSNAMEW, nullptr, style, rect, parent, id))
        return FALSE;
    ::SendMessageW(m_hWnd, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    return TRUE;
}

BOOL CToolBarCtrl::GetButton(int index, LPTBBUTTON button) const {
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(button)));
}

BOOL CToolBarCtrl::GetItemRect(int index, LPRECT rect) const {
    return static_cast<BOOL>(
        ::SendMessageW(m_hWnd, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

BOOL CToolBarCtrl::GetButtonInfo(int id, TBBUTTONINFOW* info) const {
    info->cbSize = sizeof *info;
    return ::SendMessageW(m_hWnd, TB_GETBUTTONINFOW, static_cast<WPARAM>(id),
                          reinterpret_cast<LPARAM>(info)) >= 0;
}

BOOL CToolBarCtrl::SetButtonSize(CSize size) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

int CToolBarCtrl::HitTest(LPPOINT point) const {
    return static_cast<int>(::SendMessageW(m_hWnd, TB_HITTEST, 0, reinterpret_cast<LPARAM>(point)));
}
