#include "WindowText.h"

#include <QVStatic.h>

namespace _qv_commonwnd {

CString TextOf(const CWnd* wnd) {
    CString text;
    if (wnd && wnd->GetSafeHwnd())
        wnd->GetWindowText(text);
    return text;
}

CRect ChildRect(const CWnd& parent, int id) {
    CRect rect;
    const HWND child = ::GetDlgItem(parent.GetSafeHwnd(), id);
    if (!child)
        return rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, parent.GetSafeHwnd(), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void UseLabelStyle(CWnd* control) {
    if (auto* label = dynamic_cast<_qv_commonctrl::CQVStatic*>(control))
        label->SetTextStyle(_qv_commonctrl::QVTEXT_LABEL);
}

void ResizeInPlace(CWnd& wnd, CSize size) {
    wnd.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace _qv_commonwnd
