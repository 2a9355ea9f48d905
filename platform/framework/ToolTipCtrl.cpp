#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

TOOLINFOW ToolOf(CWnd* wnd, UINT_PTR id, bool wholeWindow) {
    TOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    if (wholeWindow) {
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = ::GetParent(wnd->GetSafeHwnd());
        tool.uId = reinterpret_cast<UINT_PTR>(wnd->GetSafeHwnd());
    } else {
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = wnd->GetSafeHwnd();
        tool.uId = id;
    }
    return tool;
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style) {
    return CWnd::CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | style,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent->GetSafeHwnd(),
                          nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* wnd, LPCTSTR text, LPCRECT rect, UINT_PTR id) {
    TOOLINFOW tool = ToolOf(wnd, id, !rect);
    tool.lpszText = const_cast<wchar_t*>(text);
    if (rect)
        tool.rect = *rect;
    return static_cast<BOOL>(::SendMessageW(m_hWnd, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}

void CToolTipCtrl::DelTool(CWnd* wnd, UINT_PTR id) {
    TOOLINFOW tool = ToolOf(wnd, id, id == 0);
    ::SendMessageW(m_hWnd, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
