#include "QVMenuEx.h"

namespace _qv_commonctrl {

int CQVMenuEx::GetMenuStringW(UINT item, CString& text, UINT flags) const {
    text.Empty();
    const int length = m_hMenu ? ::GetMenuStringW(m_hMenu, item, nullptr, 0, flags) : 0;
    if (length <= 0)
        return 0;
    const int copied = ::GetMenuStringW(m_hMenu, item, text.GetBuffer(length + 1), length + 1, flags);
    text.ReleaseBuffer(copied);
    return copied;
}

BOOL CQVMenuEx::ModifyMenuW(UINT position, UINT flags, UINT_PTR id, LPCWSTR text) {
    constexpr UINT kStates = MFS_CHECKED | MFS_DISABLED | MFS_DEFAULT;
    const BOOL byPosition = (flags & MF_BYPOSITION) != 0;
    MENUITEMINFOW former = {};
    former.cbSize = sizeof(former);
    former.fMask = MIIM_STATE | MIIM_SUBMENU | MIIM_FTYPE;
    if (!m_hMenu || !::GetMenuItemInfoW(m_hMenu, position, byPosition, &former))
        return FALSE;
    MENUITEMINFOW item = {};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_STATE | MIIM_FTYPE | MIIM_STRING;
    item.fState = former.fState & kStates;
    item.fType = (former.fType & MFT_RADIOCHECK) | (flags & (MF_MENUBREAK | MF_MENUBARBREAK | MF_SEPARATOR));
    item.dwTypeData = const_cast<LPWSTR>(text ? text : L"");
    if (!former.hSubMenu) { // the id of a pop-up item is the pop-up itself and stays
        item.fMask |= MIIM_ID;
        item.wID = static_cast<UINT>(id);
    }
    return ::SetMenuItemInfoW(m_hMenu, position, byPosition, &item);
}

} // namespace _qv_commonctrl
