// afxcmn.h: the classes of the common controls. Each member stands for the documented message of its name;
// indexes are 0-based, a missing item is answered as the message answers it.
#pragma once

#include "afxwin.h"
#include "afximagelist.h"

#include <commctrl.h>

class AFXFRAME_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetItemCount() const { return static_cast<int>(::SendMessageW(m_hWnd, HDM_GETITEMCOUNT, 0, 0)); }
    BOOL GetItem(int index, HDITEMW* item) const;
    BOOL SetItem(int index, HDITEMW* item);
    int InsertItem(int index, HDITEMW* item);
    BOOL GetItemRect(int index, LPRECT rect) const;
};

class AFXFRAME_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    CHeaderCtrl* GetHeaderCtrl() const;
    int GetItemCount() const { return static_cast<int>(::SendMessageW(m_hWnd, LVM_GETITEMCOUNT, 0, 0)); }
    void SetItemCount(int count) { ::SendMessageW(m_hWnd, LVM_SETITEMCOUNT, static_cast<WPARAM>(count), 0); }
    // Column `index` becomes the one after its number; width in pixels; sub-item -1 leaves it to the list.
    int InsertColumn(int index, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    int InsertColumn(int index, const LVCOLUMNW* column);
    BOOL SetColumn(int index, const LVCOLUMNW* column);
    BOOL SetColumnWidth(int index, int width);
    int GetColumnWidth(int index) const;
    int InsertItem(int index, LPCTSTR text);
    int InsertItem(const LVITEMW* item);
    BOOL SetItem(const LVITEMW* item);
    BOOL GetItem(LVITEMW* item) const;
    BOOL DeleteItem(int index) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, LVM_DELETEITEM, static_cast<WPARAM>(index), 0));
    }
    BOOL DeleteAllItems() { return static_cast<BOOL>(::SendMessageW(m_hWnd, LVM_DELETEALLITEMS, 0, 0)); }
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    CString GetItemText(int index, int subItem) const; // whatever its length
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data);
    UINT GetItemState(int index, UINT mask) const;
    BOOL SetItemState(int index, UINT state, UINT mask);
    int GetNextItem(int after, int flags) const; // after -1: from the start
    UINT GetSelectedCount() const {
        return static_cast<UINT>(::SendMessageW(m_hWnd, LVM_GETSELECTEDCOUNT, 0, 0));
    }
    BOOL EnsureVisible(int index, BOOL partialOk);
    BOOL GetItemRect(int index, LPRECT rect, UINT part) const;
    BOOL GetSubItemRect(int index, int subItem, int part, CRect& rect) const;
    int HitTest(LVHITTESTINFO* hit) const;
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetExtendedStyle() const {
        return static_cast<DWORD>(::SendMessageW(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    }
    BOOL SetBkColor(COLORREF color) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(color)));
    }
    BOOL SetTextColor(COLORREF color) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(color)));
    }
    BOOL SetTextBkColor(COLORREF color) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(color)));
    }
    HIMAGELIST SetImageList(HIMAGELIST images, int kind);
    HIMAGELIST GetImageList(int kind) const;
};

class AFXFRAME_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    UINT GetCount() const { return static_cast<UINT>(::SendMessageW(m_hWnd, TVM_GETCOUNT, 0, 0)); }
    HTREEITEM InsertItem(TVINSERTSTRUCTW* insert);
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)));
    }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL GetItem(TVITEMW* item) const;
    BOOL SetItem(const TVITEMW* item);
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCTSTR text);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    BOOL Select(HTREEITEM item, UINT code);
    BOOL SelectItem(HTREEITEM item) { return Select(item, TVGN_CARET); }
    BOOL Expand(HTREEITEM item, UINT code);
    BOOL EnsureVisible(HTREEITEM item);
    BOOL SortChildren(HTREEITEM item);
    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const;
    HTREEITEM HitTest(TVHITTESTINFO* hit) const;
    COLORREF SetBkColor(COLORREF color) {
        return static_cast<COLORREF>(::SendMessageW(m_hWnd, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(color)));
    }
    COLORREF SetTextColor(COLORREF color) {
        return static_cast<COLORREF>(::SendMessageW(m_hWnd, TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(color)));
    }
    HIMAGELIST SetImageList(HIMAGELIST images, int kind);
};

class AFXFRAME_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetRange32(int lower, int upper) {
        ::SendMessageW(m_hWnd, PBM_SETRANGE32, static_cast<WPARAM>(lower), upper);
    }
    void GetRange(int& lower, int& upper) const;
    int SetPos(int pos) {
        return static_cast<int>(::SendMessageW(m_hWnd, PBM_SETPOS, static_cast<WPARAM>(pos), 0));
    }
    int GetPos() const { return static_cast<int>(::SendMessageW(m_hWnd, PBM_GETPOS, 0, 0)); }
    int SetStep(int step) {
        return static_cast<int>(::SendMessageW(m_hWnd, PBM_SETSTEP, static_cast<WPARAM>(step), 0));
    }
    int StepIt() { return static_cast<int>(::SendMessageW(m_hWnd, PBM_STEPIT, 0, 0)); }
};

class AFXFRAME_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetButtonCount() const { return static_cast<int>(::SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0)); }
    BOOL GetButton(int index, LPTBBUTTON button) const;
    BOOL GetItemRect(int index, LPRECT rect) const;
    BOOL GetButtonInfo(int id, TBBUTTONINFOW* info) const; // id: the command id, as TB_GETBUTTONINFOW
    BOOL SetButtonSize(CSize size);
    HIMAGELIST GetImageList() const {
        return reinterpret_cast<HIMAGELIST>(::SendMessageW(m_hWnd, TB_GETIMAGELIST, 0, 0));
    }
    int HitTest(LPPOINT point) const;
    int GetHotItem() const { return static_cast<int>(::SendMessageW(m_hWnd, TB_GETHOTITEM, 0, 0)); }
};

class AFXFRAME_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

  public:
    virtual BOOL Create(CWnd* parent, DWORD style = 0);
    // A tip for a whole child window (rect null) or a rectangle of it; the text is copied by the control.
    BOOL AddTool(CWnd* wnd, LPCTSTR text, LPCRECT rect = nullptr, UINT_PTR id = 0);
    void DelTool(CWnd* wnd, UINT_PTR id = 0);
    void Activate(BOOL activate) { ::SendMessageW(m_hWnd, TTM_ACTIVATE, static_cast<WPARAM>(activate), 0); }
    void RelayEvent(MSG* message) {
        ::SendMessageW(m_hWnd, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
    }
};

class AFXFRAME_API CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)

  public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;
    int InsertItem(const COMBOBOXEXITEMW* item);
    BOOL GetItem(COMBOBOXEXITEMW* item) const;
    HWND GetComboBoxHandle() const {
        return reinterpret_cast<HWND>(::SendMessageW(m_hWnd, CBEM_GETCOMBOCONTROL, 0, 0));
    }
    HWND GetEditHandle() const {
        return reinterpret_cast<HWND>(::SendMessageW(m_hWnd, CBEM_GETEDITCONTROL, 0, 0));
    }
};
