// CComboBox: a combo box. Indexes from 0; CB_ERR (-1) means none or failure.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
  public:
    CComboBox() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(L"COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetCount() const { return Ask(CB_GETCOUNT); }
    int GetCurSel() const { return Ask(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(CB_SETCURSEL, nSelect); }
    int GetTopIndex() const { return Ask(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Ask(CB_SETTOPINDEX, nIndex); }
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) {
        return Ask(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return Ask(CB_LIMITTEXT, nMaxChars); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return Ask(CB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    int GetLBText(int nIndex, LPTSTR lpszText) const {
        return Ask(CB_GETLBTEXT, nIndex, reinterpret_cast<LPARAM>(lpszText));
    }
    void GetLBText(int nIndex, CString& rString) const; // empty when there is no such item
    int GetLBTextLen(int nIndex) const { return Ask(CB_GETLBTEXTLEN, nIndex); }
    int GetItemHeight(int nIndex) const { return Ask(CB_GETITEMHEIGHT, nIndex); } // -1: the selection field
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return Ask(CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    void SetHorizontalExtent(UINT nExtent) { SendMessage(CB_SETHORIZONTALEXTENT, nExtent); }
    int GetDroppedWidth() const { return Ask(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return Ask(CB_SETDROPPEDWIDTH, static_cast<int>(nWidth)); }
    void GetDroppedControlRect(LPRECT lprect) const {
        SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
    }
    BOOL GetDroppedState() const { return Ask(CB_GETDROPPEDSTATE); }
    int SetExtendedUI(BOOL bExtended = TRUE) { return Ask(CB_SETEXTENDEDUI, bExtended); }
    BOOL GetExtendedUI() const { return Ask(CB_GETEXTENDEDUI); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const { return ::GetComboBoxInfo(m_hWnd, pcbi); }
    int SetMinVisibleItems(int iMinVisible); // TRUE on success
    void ShowDropDown(BOOL bShowIt = TRUE) { SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt)); }
    int AddString(LPCTSTR lpszString) { return Ask(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }
    int InsertString(int nIndex, LPCTSTR lpszString) {
        return Ask(CB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszString));
    }
    int DeleteString(UINT nIndex) { return Ask(CB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return Ask(CB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszString));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return Ask(CB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return Ask(CB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszString));
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    // For owner-drawn combo boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};
