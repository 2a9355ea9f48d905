#include "afxctl_std.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
