// CListBox: a list box. Indexes from 0; LB_ERR (-1) means none or failure.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
  public:
    CListBox() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(L"LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetCount() const { return Ask(LB_GETCOUNT); }
    int GetCurSel() const { return Ask(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(LB_SETCURSEL, nSelect); }
    int GetTopIndex() const { return Ask(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Ask(LB_SETTOPINDEX, nIndex); }
    int GetCaretIndex() const { return Ask(LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) { return Ask(LB_SETCARETINDEX, nIndex, !bScroll); }
    int GetSel(int nIndex) const { return Ask(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return static_cast<int>(SendMessage(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex));
    }
    int GetSelCount() const { return Ask(LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const {
        return Ask(LB_GETSELITEMS, nMaxItems, reinterpret_cast<LPARAM>(rgIndex));
    }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return Ask(LB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return Ask(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect));
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return Ask(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(lpszBuffer));
    }
    void GetText(int nIndex, CString& rString) const; // empty when there is no such item
    int GetTextLen(int nIndex) const { return Ask(LB_GETTEXTLEN, nIndex); }
    int GetItemHeight(int nIndex) const { return Ask(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return Ask(LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    void SetHorizontalExtent(int cxExtent) { Ask(LB_SETHORIZONTALEXTENT, cxExtent); }
    int GetHorizontalExtent() const { return Ask(LB_GETHORIZONTALEXTENT); }
    void SetColumnWidth(int cxWidth) { Ask(LB_SETCOLUMNWIDTH, cxWidth); }
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    int AddString(LPCTSTR lpszItem) { return Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return Ask(LB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszItem));
    }
    int DeleteString(UINT nIndex) { return Ask(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { Ask(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return Ask(LB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return Ask(LB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return Ask(LB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem));
    }
    // For owner-drawn list boxes and keyboard input that the owner asked to see.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}
    virtual int VKeyToItem(UINT, UINT) { return -1; }
    virtual int CharToItem(UINT, UINT) { return -1; }

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};
