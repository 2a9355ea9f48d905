// Data exchange between the controls of a dialog and the members of its object.
//
//     void CMyDlg::DoDataExchange(CDataExchange* pDX) {
//         CDialog::DoDataExchange(pDX);
//         DDX_Control(pDX, IDC_NAME, m_editName);
//         DDX_Text(pDX, IDC_NAME, m_strName);
//     }
#pragma once

#include "Wnd.h"

class CDataExchange {
  public:
    BOOL m_bSaveAndValidate; // TRUE: controls to members
    CWnd* m_pDlgWnd;         // the dialog, never null
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;

    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    // The control's window, remembered for Fail. A missing control throws CInvalidArgException*.
    AFXFRAME_API HWND PrepareCtrl(int nIDC);
    AFXFRAME_API HWND PrepareEditCtrl(int nIDC);
    // Puts the focus on the last prepared control, selects its text when it is an edit, and throws
    // CUserException*, which makes UpdateData answer FALSE.
    [[noreturn]] AFXFRAME_API void Fail();
};

// Connects rControl to the control by subclassing, at the first exchange.
AFXFRAME_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// Text of an edit, static or combo box. Numbers: decimal, with sign for signed types; other content is
// refused with a message. Reading trims nothing. The array form reads at most nMaxLen - 1 characters.
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long long& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, unsigned long long& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFXFRAME_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);

// State of a check box: 0, 1, or 2 for a three-state one; other values are written as 0.
AFXFRAME_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// Index, from 0, of the checked button in the group of radio buttons that starts with nIDC; -1: none.
AFXFRAME_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
// Index of the selected item, from 0; -1: none.
AFXFRAME_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
AFXFRAME_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
// Text of the selection; writing selects the item of that text, for a combo box with an edit also as free
// text.
AFXFRAME_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFXFRAME_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);

// Refuses more than nChars characters when reading; limits the edit control's input when writing.
AFXFRAME_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
AFXFRAME_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFXFRAME_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFXFRAME_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal);
