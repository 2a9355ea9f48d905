#include "window/ThreadTemporaries.h"
#include "afxstat_.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

// The platform takes a bitmap in place of a text when MF_BITMAP is set.
LPCWSTR AsItemText(const CBitmap* pBmp) {
    return pBmp ? static_cast<LPCWSTR>(pBmp->GetSafeHandle()) : nullptr;
}

HBITMAP HandleOf(const CBitmap* pBmp) {
    return pBmp ? static_cast<HBITMAP>(*pBmp) : nullptr;
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
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    const int copied = ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {
}
