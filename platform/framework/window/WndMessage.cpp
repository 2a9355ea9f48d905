// CWnd: from a message to its handler.
#include "ThreadState.h"
#include "afxctl_list.h"
#include "afxctl_std.h"
#include "afxdd_.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

namespace {

bool IsControlColour(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT& result = pResult ? *pResult : ignored;
    result = 0;
    if (message == WM_COMMAND && OnCommand(wParam, lParam)) {
        result = 1;
        return TRUE;
    }
    if (message == WM_COMMAND)
        return FALSE;
    if (message == WM_NOTIFY) {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        return header && header->hwndFrom && OnNotify(wParam, lParam, &result);
    }
    const UINT mapped = IsControlColour(message) ? WM_CTLCOLOR : message;
    const AFX_MSGMAP_ENTRY* const entry = AfxThreadState::Get().messageCache.Find(GetMessageMap(), mapped);
    return entry && AfxDispatchMessage(this, *entry, wParam, lParam, &result);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    return super ? ::CallWindowProcW(super, m_hWnd, message, wParam, lParam)
                 : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& message = AfxThreadState::Get().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &AfxThreadState::Get().currentMessage;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control && ReflectLastMsg(control))
        return TRUE;
    if (!id)
        return FALSE;
    return OnCmdMsg(id, control ? HIWORD(wParam) : CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify = {pResult, header};
    const auto id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = AfxThreadState::Get().currentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT* const result = pResult ? pResult : &ignored;
    if (message == WM_COMMAND) {
        if (!CWnd::OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr))
            return FALSE;
        *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        auto* const header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify = {result, header};
        return CWnd::OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    if (IsControlColour(message))
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, wParam, lParam, result);
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
    default:
        return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (pWnd && pWnd != this && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* const menu =
                CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
            return menu->DrawItem(lpDrawItemStruct);
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType != ODT_MENU && ReflectLastMsg(::GetDlgItem(m_hWnd, nIDCtl)))
        return;
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &result) ? result : Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    return static_cast<int>(pListBox && pListBox->SendChildNotifyLastMsg(&result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    return static_cast<int>(pListBox && pListBox->SendChildNotifyLastMsg(&result) ? result : Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT event = LOWORD(message);
    if ((event == WM_CREATE || event == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    if (!m_hWnd)
        return FALSE;
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user has been told
        return FALSE;
    }
}
