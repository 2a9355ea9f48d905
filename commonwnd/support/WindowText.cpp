#include "WindowText.h"

#include "Handles.h"

#include <QVStatic.h>

namespace _qv_commonwnd {

CString WindowTextOf(const CWnd* wnd) {
    CString text;
    if (wnd && wnd->GetSafeHwnd())
        wnd->GetWindowText(text);
    return text;
}

CSize MeasureTextIn(HWND control, const CString& text, UINT format) {
    if (!control || text.IsEmpty())
        return CSize(0, 0);
    const WindowDC dc(control);
    const Selection font(dc.Get(), reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0)));
    CRect rect;
    ::DrawTextW(dc.Get(), text, text.GetLength(), &rect, format | DT_CALCRECT);
    return rect.Size();
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
    if (auto* label = dynamic_cast<_qv_commonctrl::CQVStatic*>(control)) {
        label->SetTextStyle(_qv_commonctrl::QVTEXT_LABEL);
        label->ModifyStyle(0, SS_NOPREFIX);
    }
}

void ResizeInPlace(CWnd& wnd, CSize size) {
    wnd.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace _qv_commonwnd
