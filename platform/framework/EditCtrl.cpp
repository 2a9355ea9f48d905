#include "afxwin.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_EDITW, nullptr, style, rect, parent, id);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    ::SendMessageW(m_hWnd, EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll)
        ::SendMessageW(m_hWnd, EM_SCROLLCARET, 0, 0);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll) {
    SetSel(static_cast<short>(LOWORD(selection)), static_cast<short>(HIWORD(selection)), noScroll);
}

void CEdit::GetSel(int& start, int& end) const {
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo) {
    ::SendMessageW(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
    return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_SETREADONLY, static_cast<WPARAM>(readOnly), 0));
}

void CEdit::SetMargins(UINT left, UINT right) {
    ::SendMessageW(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                   MAKELONG(static_cast<WORD>(left), static_cast<WORD>(right)));
}

int CEdit::LineFromChar(int index) const {
    return static_cast<int>(::SendMessageW(m_hWnd, EM_LINEFROMCHAR, static_cast<WPARAM>(index), 0));
}

int CEdit::LineIndex(int line) const {
    return static_cast<int>(::SendMessageW(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(line), 0));
}

CPoint CEdit::PosFromChar(UINT index) const {
    const DWORD point = static_cast<DWORD>(::SendMessageW(m_hWnd, EM_POSFROMCHAR, index, 0));
    return CPoint(static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point)));
}

int CEdit::CharFromPos(CPoint point) const {
    return static_cast<short>(
        LOWORD(::SendMessageW(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y))));
}
