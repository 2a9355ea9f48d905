// QVGetStrDlg.h: asks for a line of text.
//
//     CQVGetStrDlg dialog(this);
//     dialog.m_strTitle = L"Rename bin";
//     dialog.m_strText = bin.Name();
//     dialog.m_strInvalidChar = L"\\/:*?\"<>|";
//     if (dialog.DoModal() == IDOK)
//         bin.Rename(dialog.m_strText);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>
#include <QVEdit.h>

namespace _qv_commonwnd {

class QVCOMMONWND_API CQVGetStrDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVGetStrDlg)

  public:
    // Loads the prompt from the dictionary.
    explicit CQVGetStrDlg(CWnd* parent = nullptr);
    ~CQVGetStrDlg() override;

    // IDOK, and m_strText is the answer; IDCANCEL; -1 when the dialog could not be made. m_strText is what
    // was typed also after a refused OK and IDCANCEL: take it only on IDOK.
    INT_PTR DoModal() override;
    // The same at the template's size, for a subclass that sizes the window itself. The window has no sizing
    // border and opens with the template's places, prompt included. From its first change of size on there is
    // no prompt, the field fills the client area, and each change moves the buttons 13 pixels further down.
    INT_PTR DoModalWindow();

    int m_nMaxLen = 260;         // most characters that can be typed
    CString m_strInvalidChar;    // characters that the text must not contain; empty: none
    CString m_strTitle;          // caption
    CString m_strText;           // initial text and answer
    CString m_strPrompt;         // text above the field
    BOOL m_bAllowEmpty = FALSE;  // FALSE: OK with an empty text does nothing
    BOOL m_bModalWindow = FALSE; // TRUE only while DoModalWindow runs

    BOOL OnInitDialog() override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    void DoDataExchange(CDataExchange* dx) override;
    afx_msg void OnBnClickedOk();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    void CreateEdit();
    void LayOutPrompted();
    void LayOutWindow();

    _qv_commonctrl::CQVEdit* m_pEdit = nullptr; // owned
    BOOL m_bFirstPaint = FALSE;
};

} // namespace _qv_commonwnd
