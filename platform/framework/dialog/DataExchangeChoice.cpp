// Data exchange with buttons and lists, and the checks of exchanged values.
#include "afxwin.h"

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(control, BM_GETCHECK, 0, 0));
        return;
    }
    const int state = value < BST_UNCHECKED || value > BST_INDETERMINATE ? BST_UNCHECKED : value;
    ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(state), 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do {
        const LRESULT kind = ::SendMessageW(control, WM_GETDLGCODE, 0, 0);
        if (kind & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(index == value), 0);
            else if (::SendMessageW(control, BM_GETCHECK, 0, 0) != 0)
                value = index;
            ++index;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !(::GetWindowLongW(control, GWL_STYLE) & WS_GROUP));
}

namespace {

// The messages of a list, whatever its kind.
struct ListMessages {
    UINT getSel;
    UINT setSel;
    UINT getTextLength;
    UINT getText;
    UINT findExact;
};
constexpr ListMessages kCombo = {CB_GETCURSEL, CB_SETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT,
                                 CB_FINDSTRINGEXACT};
constexpr ListMessages kListBox = {LB_GETCURSEL, LB_SETCURSEL, LB_GETTEXTLEN, LB_GETTEXT, LB_FINDSTRINGEXACT};

void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, const ListMessages& messages) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(control, messages.getSel, 0, 0));
    else
        ::SendMessageW(control, messages.setSel, static_cast<WPARAM>(index), 0);
}

CString SelectedText(HWND control, const ListMessages& messages) {
    CString text;
    const LRESULT index = ::SendMessageW(control, messages.getSel, 0, 0);
    if (index < 0)
        return text;
    const LRESULT length = ::SendMessageW(control, messages.getTextLength, static_cast<WPARAM>(index), 0);
    if (length <= 0)
        return text;
    ::SendMessageW(control, messages.getText, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(length))));
    text.ReleaseBuffer();
    return text;
}

bool SelectText(HWND control, LPCTSTR text, const ListMessages& messages) {
    const LRESULT index =
        ::SendMessageW(control, messages.findExact, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
    if (index < 0)
        return false;
    ::SendMessageW(control, messages.setSel, static_cast<WPARAM>(index), 0);
    return true;
}

template <class... Values>
void RefuseUnless(CDataExchange* pDX, bool accepted, LPCTSTR format, Values... values) {
    if (!pDX->m_bSaveAndValidate || accepted)
        return;
    CString text;
    text.Format(format, values...);
    AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION);
    pDX->Fail();
}

} // namespace

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, kCombo);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, kListBox);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    const bool list = (::GetWindowLongW(control, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
    if (!pDX->m_bSaveAndValidate) {
        if (!SelectText(control, value, kCombo) && !list)
            ::SetWindowTextW(control, value);
    } else if (list) {
        value = SelectedText(control, kCombo);
    } else {
        const int length = ::GetWindowTextLengthW(control);
        ::GetWindowTextW(control, value.GetBuffer(length + 1), length + 1);
        value.ReleaseBuffer();
    }
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = SelectedText(control, kListBox);
    else
        SelectText(control, value, kListBox);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (!pDX->m_bSaveAndValidate && pDX->m_hWndLastControl && pDX->m_bEditLastControl)
        ::SendMessageW(pDX->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
    RefuseUnless(pDX, value.GetLength() <= nChars, L"Please enter no more than %d characters.", nChars);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    RefuseUnless(pDX, value >= minVal && value <= maxVal, L"Please enter a number between %d and %d.", minVal,
                 maxVal);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    RefuseUnless(pDX, value >= minVal && value <= maxVal, L"Please enter a number between %u and %u.", minVal,
                 maxVal);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal) {
    RefuseUnless(pDX, value >= minVal && value <= maxVal, L"Please enter a number between %g and %g.", minVal,
                 maxVal);
}
