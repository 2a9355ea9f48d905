// CStatic: owner-drawn statics.
#include "ItemMessages.h"
#include "afx/Static.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) || DispatchDrawItem(*this, message, lParam);
}
