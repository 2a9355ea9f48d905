// afxctl.h: the classes of the system's basic controls; included by afxwin.h. Each member stands for the
// documented message of its name; positions, ids and indexes are 0-based, a missing one is answered as the
// message answers it.
#pragma once

class AFXFRAME_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

  public:
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON icon);
};

class AFXFRAME_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

  public:
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    UINT GetState() const { return static_cast<UINT>(::SendMessageW(m_hWnd, BM_GETSTATE, 0, 0)); }
    void SetState(BOOL pressed) { ::SendMessageW(m_hWnd, BM_SETSTATE, static_cast<WPARAM>(pressed), 0); }
    int GetCheck() const { return static_cast<int>(::SendMessageW(m_hWnd, BM_GETCHECK, 0, 0)); }
    void SetCheck(int check) { ::SendMessageW(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(check), 0); }
    UINT GetButtonStyle() const { return GetStyle() & BS_TYPEMASK; }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) {
        ::SendMessageW(m_hWnd, BM_SETSTYLE, style, redraw);
    }
    // For owner-drawn buttons, called with the reflected WM_DRAWITEM.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
};

class AFXFRAME_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetLimitText(UINT count) { ::SendMessageW(m_hWnd, EM_LIMITTEXT, count, 0); }
    void LimitText(int count = 0) { ::SendMessageW(m_hWnd, EM_LIMITTEXT, static_cast<WPARAM>(count), 0); }
    UINT GetLimitText() const { return static_cast<UINT>(::SendMessageW(m_hWnd, EM_GETLIMITTEXT, 0, 0)); }
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void SetSel(DWORD selection, BOOL noScroll = FALSE);
    void GetSel(int& start, int& end) const;
    DWORD GetSel() const { return static_cast<DWORD>(::SendMessageW(m_hWnd, EM_GETSEL, 0, 0)); }
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);
    BOOL GetModify() const { return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_GETMODIFY, 0, 0)); }
    void SetModify(BOOL modified = TRUE) {
        ::SendMessageW(m_hWnd, EM_SETMODIFY, static_cast<WPARAM>(modified), 0);
    }
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    void SetMargins(UINT left, UINT right);
    void SetRectNP(LPCRECT rect) { ::SendMessageW(m_hWnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(rect)); }
    void GetRect(LPRECT rect) const { ::SendMessageW(m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(rect)); }
    int GetLineCount() const { return static_cast<int>(::SendMessageW(m_hWnd, EM_GETLINECOUNT, 0, 0)); }
    int LineFromChar(int index = -1) const;
    int LineIndex(int line = -1) const;
    CPoint PosFromChar(UINT index) const;
    int CharFromPos(CPoint point) const;
    BOOL CanUndo() const { return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_CANUNDO, 0, 0)); }
    BOOL Undo() { return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_UNDO, 0, 0)); }
    void EmptyUndoBuffer() { ::SendMessageW(m_hWnd, EM_EMPTYUNDOBUFFER, 0, 0); }
    void Clear() { ::SendMessageW(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessageW(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessageW(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessageW(m_hWnd, WM_PASTE, 0, 0); }
};

class AFXFRAME_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetCount() const { return static_cast<int>(::SendMessageW(m_hWnd, LB_GETCOUNT, 0, 0)); }
    int GetCurSel() const { return static_cast<int>(::SendMessageW(m_hWnd, LB_GETCURSEL, 0, 0)); }
    int SetCurSel(int index);
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text);
    int DeleteString(UINT index) {
        return static_cast<int>(::SendMessageW(m_hWnd, LB_DELETESTRING, index, 0));
    }
    void ResetContent() { ::SendMessageW(m_hWnd, LB_RESETCONTENT, 0, 0); }
    int GetTextLen(int index) const;
    void GetText(int index, CString& text) const; // empty for an index outside the list
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
    int GetItemRect(int index, LPRECT rect) const;
    int GetTopIndex() const { return static_cast<int>(::SendMessageW(m_hWnd, LB_GETTOPINDEX, 0, 0)); }
    int SetTopIndex(int index);
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
};

class AFXFRAME_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetCount() const { return static_cast<int>(::SendMessageW(m_hWnd, CB_GETCOUNT, 0, 0)); }
    int GetCurSel() const { return static_cast<int>(::SendMessageW(m_hWnd, CB_GETCURSEL, 0, 0)); }
    int SetCurSel(int index);
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text);
    int DeleteString(UINT index) {
        return static_cast<int>(::SendMessageW(m_hWnd, CB_DELETESTRING, index, 0));
    }
    void ResetContent() { ::SendMessageW(m_hWnd, CB_RESETCONTENT, 0, 0); }
    int FindString(int startAfter, LPCTSTR text) const;
    int FindStringExact(int startAfter, LPCTSTR text) const;
    int SelectString(int startAfter, LPCTSTR text);
    int GetLBTextLen(int index) const;
    void GetLBText(int index, CString& text) const; // empty for an index outside the list
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
    int GetItemHeight(int index) const;
    int SetItemHeight(int index, UINT height); // index -1: the selection field
    BOOL LimitText(int count) {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, CB_LIMITTEXT, static_cast<WPARAM>(count), 0));
    }
    void ShowDropDown(BOOL show = TRUE) {
        ::SendMessageW(m_hWnd, CB_SHOWDROPDOWN, static_cast<WPARAM>(show), 0);
    }
    BOOL GetDroppedState() const {
        return static_cast<BOOL>(::SendMessageW(m_hWnd, CB_GETDROPPEDSTATE, 0, 0));
    }
    int SetDroppedWidth(UINT width) {
        return static_cast<int>(::SendMessageW(m_hWnd, CB_SETDROPPEDWIDTH, width, 0));
    }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const { return ::GetComboBoxInfo(m_hWnd, info); }
};

class AFXFRAME_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

  public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE) {
        return ::SetScrollInfo(m_hWnd, SB_CTL, info, redraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL);
};
