// CMenu: handle, items, and the menu shown.
#include "handles/HandleOf.h"
#include "handles/ThreadTemporaries.h"
#include "text/FetchedText.h"
#include "afx/Resources.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

// The platform takes a bitmap in place of a text when MF_BITMAP is set.
LPCWSTR AsItemText(const CBitmap* pBmp) {
    return pBmp ? static_cast<LPCWSTR>(pBmp->GetSafeHandle()) : nullptr;
}

} // namespace

BOOL CMenu::Attach(HMENU hMenu) {
    return AttachHandle<CMenu>(this, m_hMenu, hMenu);
}

HMENU CMenu::Detach() {
    return DetachHandle<CMenu>(this, m_hMenu, &ThreadTemporaries::menus);
}

BOOL CMenu::AttachNew(HMENU hMenu) {
    if (Attach(hMenu))
        return TRUE;
    if (hMenu)
        ::DestroyMenu(hMenu);
    return FALSE;
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) {
    return FindAttached<CMenu>(hMenu);
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return FindOrBorrow(hMenu, &CMenu::m_hMenu, &ThreadTemporaries::menus);
}

void PASCAL CMenu::DeleteTempMap() {
    ClearTemporaries(&ThreadTemporaries::menus);
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu ? ::DestroyMenu(Detach()) : FALSE;
}

BOOL CMenu::LoadMenu(LPCWSTR lpszResourceName) {
    return AttachNew(::LoadMenuW(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenuW(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::InsertMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, HandleOf(pBmpUnchecked), HandleOf(pBmpChecked));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    rString = FetchedText(length, [&](LPWSTR buffer) {
        return ::GetMenuStringW(m_hMenu, nIDItem, buffer, length + 1, nFlags);
    });
    return rString.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    HWND const owner = HandleOf(pWnd);
    return owner ? ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, owner, lpRect) : FALSE;
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    HWND const owner = HandleOf(pWnd);
    return owner ? ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, owner, lptpm) : FALSE;
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {
}
