// CEdit: selection, places and the cue banner.
#include "afx/Edit.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    const auto point = static_cast<DWORD>(SendMessage(EM_POSFROMCHAR, nChar));
    return CPoint(static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point)));
}

BOOL CEdit::SetCueBanner(LPCTSTR lpcwText, BOOL fDrawWhenFocused) {
    return static_cast<BOOL>(SendMessage(EM_SETCUEBANNER, static_cast<WPARAM>(fDrawWhenFocused),
                                         reinterpret_cast<LPARAM>(lpcwText)));
}
