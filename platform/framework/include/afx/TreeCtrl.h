// CTreeCtrl: a tree view. Item handles null for none.
#pragma once

#include "Edit.h"
#include "ImageList.h"

class AFXFRAME_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
  public:
    CTreeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_TREEVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
    }

    // ---- Colours, images, sizes in pixels.
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(clr)));
    }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(clr)));
    }
    COLORREF SetLineColor(COLORREF clr = CLR_DEFAULT) {
        return static_cast<COLORREF>(SendMessage(TVM_SETLINECOLOR, 0, static_cast<LPARAM>(clr)));
    }
    CImageList* GetImageList(UINT nImageList) const {
        return CImageList::FromHandle(
            reinterpret_cast<HIMAGELIST>(SendMessage(TVM_GETIMAGELIST, nImageList)));
    }
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    UINT GetIndent() const { return static_cast<UINT>(SendMessage(TVM_GETINDENT)); }
    void SetIndent(UINT nIndent) { SendMessage(TVM_SETINDENT, nIndent); }
    SHORT GetItemHeight() const { return static_cast<SHORT>(SendMessage(TVM_GETITEMHEIGHT)); }
    SHORT SetItemHeight(SHORT cyHeight) {
        return static_cast<SHORT>(SendMessage(TVM_SETITEMHEIGHT, static_cast<WPARAM>(cyHeight)));
    }

    // ---- Items.
    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    UINT GetVisibleCount() const { return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT)); }
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct) { return Tree(TVM_INSERTITEMW, 0, lpInsertStruct); }
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return Tree(TVM_DELETEITEM, 0, hItem) != nullptr; }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL GetItem(TVITEM* pItem) const { return Tree(TVM_GETITEMW, 0, pItem) != nullptr; }
    BOOL SetItem(TVITEM* pItem) { return Tree(TVM_SETITEMW, 0, pItem) != nullptr; }
    CString GetItemText(HTREEITEM hItem) const; // whole text, empty when there is none
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const; // 0 when there is no such item
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return Tree(TVM_EXPAND, nCode, hItem) != nullptr; }
    BOOL SortChildren(HTREEITEM hItem) { return Tree(TVM_SORTCHILDREN, 0, hItem) != nullptr; }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return Tree(TVM_SORTCHILDRENCB, 0, pSort) != nullptr; }

    // ---- Walking.
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const { return Tree(TVM_GETNEXTITEM, nCode, hItem); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    BOOL Select(HTREEITEM hItem, UINT nCode) { return Tree(TVM_SELECTITEM, nCode, hItem) != nullptr; }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL EnsureVisible(HTREEITEM hItem) { return Tree(TVM_ENSUREVISIBLE, 0, hItem) != nullptr; }
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const { return Tree(TVM_HITTEST, 0, pHitTestInfo); }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    CEdit* EditLabel(HTREEITEM hItem);
    CEdit* GetEditControl() const;
    CImageList* CreateDragImage(HTREEITEM hItem); // the caller deletes it; null on failure

  private:
    HTREEITEM Tree(UINT message, WPARAM wParam, const void* p) const {
        return reinterpret_cast<HTREEITEM>(SendMessage(message, wParam, reinterpret_cast<LPARAM>(p)));
    }
};
