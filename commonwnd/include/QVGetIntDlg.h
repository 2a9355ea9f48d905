// QVGetIntDlg.h: asks for a whole number, typed as digits or as a timecode.
//
//     CQVGetIntDlg dialog(this);
//     dialog.m_strTitle = L"Handles";
//     dialog.m_strUnit = L"fr";
//     dialog.m_nMax = 250;
//     dialog.m_nValue = 25;
//     if (dialog.DoModal() == IDOK)
//         SetHandles(dialog.m_nValue);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>
#include <QVExtraCtrl.h>

namespace _qv_commonwnd {

enum QVGetIntType : int {
    QVGETINT_NUMBER = 1,   // decimal digits
    QVGETINT_TIMECODE = 2, // a timecode at 25 frames a second; the value counts frames
};

class QVCOMMONWND_API CQVGetIntDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVGetIntDlg)

  public:
    explicit CQVGetIntDlg(CWnd* parent = nullptr);
    ~CQVGetIntDlg() override;

    // IDOK, and m_nValue is the answer; IDCANCEL: m_nValue is as it was or a number that OK refused, take it
    // only on IDOK; -1 when the dialog could not be made.
    INT_PTR DoModal() override;

    CString m_strTitle;        // caption; empty: the template's
    CString m_strLabel;        // text before the field; empty: the template's
    CString m_strUnit;         // text behind the field; empty: the template's
    long long m_nMax = 100000; // a number above is refused without a message; the dialog stays
    long long m_nMin = 0;      // the same for a number below
    CString m_strIncludeKey;   // the characters that may be typed; empty: all. Cleared for a timecode
    // Initial value and answer. The number typed is the one that the text starts with: white space, a sign,
    // digits, 64 bits (a longer one is the nearest); what follows is left out, and a text that starts
    // otherwise is 0.
    long long m_nValue = 0;
    int m_nType = QVGETINT_NUMBER; // QVGetIntType; with any other value OK closes and m_nValue stays

    BOOL OnInitDialog() override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnBnClickedOk();
    afx_msg void OnPaint();
    afx_msg void OnDestroy();

    _qv_extractrl::CQVEditEx* m_pEdit = nullptr;     // owned while the window lives
    _qv_extractrl::CQVTimeCodeEditEx m_TimeCodeEdit; // has a window for a timecode only

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    void CreateTimecodeEdit();
    void ShowTexts();
};

} // namespace _qv_commonwnd
