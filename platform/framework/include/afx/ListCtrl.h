// CListCtrl: a list view. Indexes (items, columns) from 0, -1 for none; sizes in pixels.
#pragma once

#include "Edit.h"
#include "HeaderCtrl.h"

class AFXFRAME_API CListCtrl : public CWnd {
    DECLARE_DYNCREATE(CListCtrl)
  public:
    CListCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_LISTVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
    }

    // ---- Colours, images, styles.
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETBKCOLOR)); }
    BOOL SetBkColor(COLORREF cr) { return Ask(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF cr) { return Ask(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF cr) { return Ask(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) {
        return static_cast<DWORD>(
            SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(dwNewStyle)));
    }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) { return Ask(LVM_SETBKIMAGEW, 0, plvbkImage); }

    // ---- Items.
    int GetItemCount() const { return Ask(LVM_GETITEMCOUNT); }
    void SetItemCount(int nItems) { Ask(LVM_SETITEMCOUNT, nItems); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL) {
        return Ask(LVM_SETITEMCOUNT, iCount, static_cast<LPARAM>(dwFlags));
    }
    BOOL GetItem(LVITEM* pItem) const { return Ask(LVM_GETITEMW, 0, pItem); }
    BOOL SetItem(const LVITEM* pItem) { return Ask(LVM_SETITEMW, 0, pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    int InsertItem(const LVITEM* pItem) { return Ask(LVM_INSERTITEMW, 0, pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    BOOL DeleteItem(int nItem) { return Ask(LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return Ask(LVM_DELETEALLITEMS); }
    CString GetItemText(int nItem, int nSubItem) const; // whole text, empty when there is none
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const; // 0 when there is no such item
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const {
        return static_cast<UINT>(Ask(LVM_GETITEMSTATE, nItem, static_cast<LPARAM>(nMask)));
    }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemState(int nItem, LVITEM* pItem) { return Ask(LVM_SETITEMSTATE, nItem, pItem); }
    BOOL GetCheck(int nItem) const { return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) == 2; }
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE) {
        return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2u : 1u), LVIS_STATEIMAGEMASK);
    }
    int GetNextItem(int nItem, int nFlags) const {
        return Ask(LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
    }
    UINT GetSelectedCount() const { return static_cast<UINT>(Ask(LVM_GETSELECTEDCOUNT)); }
    POSITION GetFirstSelectedItemPosition() const; // null: nothing selected
    int GetNextSelectedItem(POSITION& pos) const;
    int GetSelectionMark() { return Ask(LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return Ask(LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(iIndex)); }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const {
        return Ask(LVM_FINDITEMW, nStart, pFindInfo);
    }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return static_cast<BOOL>(SendMessage(LVM_SORTITEMS, dwData, reinterpret_cast<LPARAM>(pfnCompare)));
    }

    // ---- Places.
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const; // nCode: LVIR_*
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const {
        return Ask(LVM_GETITEMPOSITION, nItem, lpPoint);
    }
    BOOL SetItemPosition(int nItem, POINT pt) { return Ask(LVM_SETITEMPOSITION32, nItem, &pt); }
    BOOL GetViewRect(LPRECT lpRect) const { return Ask(LVM_GETVIEWRECT, 0, lpRect); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return Ask(LVM_GETORIGIN, 0, lpPoint); }
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return Ask(LVM_HITTEST, 0, pHitTestInfo); }
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo) { return Ask(LVM_SUBITEMHITTEST, 0, pInfo); }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) { return Ask(LVM_ENSUREVISIBLE, nItem, bPartialOK); }
    BOOL Scroll(CSize size) { return Ask(LVM_SCROLL, size.cx, static_cast<LPARAM>(size.cy)); }
    BOOL RedrawItems(int nFirst, int nLast) {
        return Ask(LVM_REDRAWITEMS, nFirst, static_cast<LPARAM>(nLast));
    }
    BOOL Update(int nItem) { return Ask(LVM_UPDATE, nItem); }
    BOOL Arrange(UINT nCode) { return Ask(LVM_ARRANGE, static_cast<int>(nCode)); }
    int GetTopIndex() const { return Ask(LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return Ask(LVM_GETCOUNTPERPAGE); }
    int GetStringWidth(LPCTSTR lpsz) const { return Ask(LVM_GETSTRINGWIDTHW, 0, lpsz); }
    CSize SetIconSpacing(CSize size);

    // ---- Columns, labels.
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const { return Ask(LVM_GETCOLUMNW, nCol, pColumn); }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) { return Ask(LVM_SETCOLUMNW, nCol, pColumn); }
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) { return Ask(LVM_INSERTCOLUMNW, nCol, pColumn); }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return Ask(LVM_DELETECOLUMN, nCol); }
    int GetColumnWidth(int nCol) const { return Ask(LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx) { return Ask(LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0)); }
    CHeaderCtrl* GetHeaderCtrl(); // null: no header; a permanent object is returned as what it is
    CEdit* EditLabel(int nItem);
    CEdit* GetEditControl() const;
    virtual void DrawItem(LPDRAWITEMSTRUCT) {} // for LVS_OWNERDRAWFIXED

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
    int Ask(UINT message, int wParam, const void* p) const {
        return Ask(message, wParam, reinterpret_cast<LPARAM>(p));
    }
};
