// The simple system controls: static, button, edit, scroll bar.
//
// All control classes here are thin: each function is the control message of the same meaning, with the
// system's units and answers (indexes from 0, -1 for none). Create makes the control as a child; DDX_Control
// and SubclassDlgItem connect an object to one of a template.
#pragma once

#include "afxwnd_.h"

class AFXFRAME_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
  public:
    CStatic() = default;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff) {
        return CWnd::Create(L"STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
    }
    // The image setters return the former image, which the caller owns again.
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(
            SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {} // for SS_OWNERDRAW

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class AFXFRAME_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
  public:
    CButton() = default;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(L"BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
    }
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xffff; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
    }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(
            SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {} // for BS_OWNERDRAW

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class AFXFRAME_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
  public:
    CEdit() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(L"EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified)); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void SetRectNP(LPCRECT lpRect) { SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect)); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    // bNoScroll FALSE: the caret is scrolled into view.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
        SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    void SetMargins(UINT nLeft, UINT nRight) { // pixels
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, ch); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR)); }
    int LineFromChar(int nIndex = -1) const {
        return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
    }
    int LineIndex(int nLine = -1) const {
        return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
    }
    int LineLength(int nLine = -1) const {
        return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
    }
    int GetFirstVisibleLine() const { return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    void LineScroll(int nLines, int nChars = 0) {
        SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
    }
    CPoint PosFromChar(UINT nChar) const; // client pixels
    int CharFromPos(CPoint pt) const {    // low word: character, high word: line
        return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
    }
    BOOL SetCueBanner(LPCTSTR lpcwText, BOOL fDrawWhenFocused = FALSE);
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};

class AFXFRAME_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
  public:
    CScrollBar() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(L"SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    int GetScrollLimit() { return CWnd::GetScrollLimit(SB_CTL); }
};
