// Data exchange: the object that goes along, texts and numbers, choices, and the checks of exchanged values.
#include "NumberText.h"
#include "text/FetchedText.h"
#include "window/WindowText.h"
#include "afx/DataExchange.h"
#include "afx/InvalidArgException.h"
#include "afx/UserException.h"
#include "afx/WinApp.h"

namespace {

// Writes only what differs, so that a control is not repainted (and its caret not moved) for nothing.
void ShowText(HWND wnd, LPCTSTR text) {
    if (WindowText(wnd) != text)
        ::SetWindowTextW(wnd, text);
}

[[noreturn]] void RefuseNumber(CDataExchange* pDX) {
    AfxMessageBox(L"Please enter a number.", MB_OK | MB_ICONEXCLAMATION);
    pDX->Fail();
}

template <class T> void ExchangeWhole(CDataExchange* pDX, int nIDC, T& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (!ParseWhole(WindowText(control), value))
            RefuseNumber(pDX);
        return;
    }
    CString text;
    if constexpr (std::is_unsigned_v<T>)
        text.Format(L"%I64u", static_cast<unsigned long long>(value));
    else
        text.Format(L"%I64d", static_cast<long long>(value));
    ShowText(control, text);
}

template <class T> void ExchangeReal(CDataExchange* pDX, int nIDC, T& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (!ParseReal(WindowText(control), value))
            RefuseNumber(pDX);
        return;
    }
    CString text;
    text.Format(L"%.*g", std::numeric_limits<T>::digits10, static_cast<double>(value));
    ShowText(control, text);
}

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
    const LRESULT index = ::SendMessageW(control, messages.getSel, 0, 0);
    if (index < 0)
        return CString();
    const auto item = static_cast<WPARAM>(index);
    const auto length = static_cast<int>(::SendMessageW(control, messages.getTextLength, item, 0));
    return FetchedText(length, [&](LPWSTR buffer) {
        return static_cast<int>(
            ::SendMessageW(control, messages.getText, item, reinterpret_cast<LPARAM>(buffer)));
    });
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

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (!control)
        AfxThrowInvalidArgException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd || pDX->m_bSaveAndValidate)
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowInvalidArgException();
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = WindowText(control);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::GetWindowTextW(control, value, nMaxLen);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long long& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, unsigned long long& value) {
    ExchangeWhole(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    ExchangeReal(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeReal(pDX, nIDC, value);
}

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
    } else {
        value = list ? SelectedText(control, kCombo) : WindowText(control);
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
