// CToolTipCtrl: creation, and the tools it speaks for.
#include "handles/HandleOf.h"
#include "afx/Resources.h"
#include "afx/ToolTipCtrl.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    return CWnd::CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, HandleOf(pParentWnd), nullptr);
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, const CWnd* pWnd, UINT_PTR nIDTool) const {
    ti = {};
    ti.cbSize = sizeof ti;
    const HWND hWnd = HandleOf(pWnd);
    if (nIDTool == 0) {
        ti.hwnd = ::GetParent(hWnd);
        ti.uFlags = TTF_IDISHWND;
        ti.uId = reinterpret_cast<UINT_PTR>(hWnd);
    } else {
        ti.hwnd = hWnd;
        ti.uId = nIDTool;
    }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    // A rectangle needs an id of its own, a whole window has none.
    if (!pWnd || (lpRectTool != nullptr) != (nIDTool != 0))
        return FALSE;
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    if (lpRectTool)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    constexpr UINT kLongestText = 1024;
    wchar_t text[kLongestText];
    return AfxLoadString(nIDText, text, kLongestText) > 0 && AddTool(pWnd, text, lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    if (lpRect)
        tool.rect = *lpRect;
    SendMessage(TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
}
