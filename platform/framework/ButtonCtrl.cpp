#include "afxwin.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

BOOL CButton::Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_BUTTONW, text, style, rect, parent, id);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {
}
