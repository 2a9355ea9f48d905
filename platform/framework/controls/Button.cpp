// CButton: owner-drawn buttons.
#include "ItemMessages.h"
#include "afx/Button.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) || DispatchDrawItem(*this, message, lParam);
}
