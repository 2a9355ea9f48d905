// CMenu: a menu handle.
//
//     CMenu menu;
//     menu.CreatePopupMenu();
//     menu.AppendMenu(MF_STRING, kCommandOpen, L"Open");
//     menu.TrackPopupMenu(TPM_LEFTALIGN, point.x, point.y, this);
//
// Ownership, Attach, Detach and FromHandle follow the rules of GdiObject.h. Destroying a menu destroys its
// submenus; a menu that belongs to a window is destroyed by the window, so detach it. Items are named by
// command (MF_BYCOMMAND, the default) or by zero-based position (MF_BYPOSITION). Functions return FALSE (0,
// -1, null) without a handle and when there is no such item.
#pragma once

#include "Object.h"
#include "String.h"

class CBitmap;
class CWnd;

class AFXFRAME_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
  public:
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    // ---- Handle.
    BOOL CreateMenu() { return AttachNew(::CreateMenu()); }
    BOOL CreatePopupMenu() { return AttachNew(::CreatePopupMenu()); }
    BOOL LoadMenu(LPCWSTR lpszResourceName); // from the chain of resource modules
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEW(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) {
        return lpMenuTemplate && AttachNew(::LoadMenuIndirectW(lpMenuTemplate));
    }
    BOOL DestroyMenu();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return GetSafeHmenu(); }
    BOOL operator==(const CMenu& menu) const { return menu.m_hMenu == m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return menu.m_hMenu != m_hMenu; }

    // ---- Showing. x and y in screen pixels; with TPM_RETURNCMD the chosen command or 0, else success. A
    // null pWnd gives FALSE.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    // ---- Changing. nIDNewItem is the command, or the submenu's handle with MF_POPUP, which the menu owns
    // then.
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::InsertMenuItemW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);

    // ---- State. Check and enable return the former state, (UINT)-1 when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) const {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }
    BOOL SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }

    // ---- Asking. Count -1 without a menu; item id 0 for a separator, (UINT)-1 for a submenu or no item.
    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    // Length of the text; at most nMaxCount units with the terminator are stored.
    int GetMenuString(UINT nIDItem, LPWSTR lpString, int nMaxCount, UINT nFlags) const {
        return ::GetMenuStringW(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    // The whole text, empty when missing.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) const {
        return ::GetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::SetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); } // may be temporary

    // ---- Owner-drawn items: called for items of this menu object, from the owner window's messages.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

  private:
    BOOL AttachNew(HMENU hMenu);
};
