// CEdit: an edit control. Positions count UTF-16 units.
#pragma once

#include "Wnd.h"

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
