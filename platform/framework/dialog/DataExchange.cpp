#include "afxwin.h"

#include <cmath>
#include <cwchar>
#include <cerrno>
#include <limits>
#include <type_traits>

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

namespace {

CString WindowText(HWND wnd) {
    CString text;
    const int length = ::GetWindowTextLengthW(wnd);
    ::GetWindowTextW(wnd, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer();
    return text;
}

// Writes only what differs, so that a control is not repainted (and its caret not moved) for nothing.
void ShowText(HWND wnd, LPCTSTR text) {
    if (WindowText(wnd) != text)
        ::SetWindowTextW(wnd, text);
}

[[noreturn]] void RefuseNumber(CDataExchange* pDX) {
    AfxMessageBox(L"Please enter a number.", MB_OK | MB_ICONEXCLAMATION);
    pDX->Fail();
}

bool OnlyBlanks(const wchar_t* text) {
    return *(text + wcsspn(text, L" \t")) == L'\0';
}

template <class T> bool ParseWhole(const CString& text, T& value) {
    const wchar_t* start = static_cast<LPCTSTR>(text) + wcsspn(text, L" \t");
    if (!*start || (std::is_unsigned_v<T> && *start == L'-'))
        return false;
    wchar_t* end = nullptr;
    errno = 0;
    using Widest = std::conditional_t<std::is_unsigned_v<T>, unsigned long long, long long>;
    Widest parsed;
    if constexpr (std::is_unsigned_v<T>)
        parsed = wcstoull(start, &end, 10);
    else
        parsed = wcstoll(start, &end, 10);
    if (end == start || errno != 0 || !OnlyBlanks(end) || parsed < std::numeric_limits<T>::min() ||
        parsed > std::numeric_limits<T>::max())
        return false;
    value = static_cast<T>(parsed);
    return true;
}

template <class T> bool ParseReal(const CString& text, T& value) {
    const wchar_t* start = static_cast<LPCTSTR>(text) + wcsspn(text, L" \t");
    wchar_t* end = nullptr;
    const double parsed = wcstod(start, &end);
    if (end == start || !std::isfinite(parsed) || !OnlyBlanks(end))
        return false;
    const T narrowed = static_cast<T>(parsed);
    if (!std::isfinite(narrowed))
        return false;
    value = narrowed;
    return true;
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

} // namespace

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
