// QVSafeColorDlg.h: edits the limits of broadcast-safe colour.
//
//     CQVSafeColorDlg dialog(this);
//     dialog.m_SafeColor = project.SafeColor();
//     dialog.SetOPALMainWnd(this); // gets WM_COMMAND 26012 when the user asks for help
//     if (dialog.DoModal() == IDOK)
//         project.SetSafeColor(dialog.m_SafeColor);
#pragma once

#include "QVSafeColor.h"
#include <QVDialog.h>
#include <QVExtraCtrl.h>
#include <QVButton.h>
#include <QVComboBox.h>

namespace _qv_commonwnd {

// The record is edited live: take it only on IDOK. OK is enabled while the record differs from what it was
// when the dialog opened. The refresh buttons are latched while their group is at its default, and set it
// back to it.
class QVCOMMONWND_API CQVSafeColorDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVSafeColorDlg)

  public:
    explicit CQVSafeColorDlg(CWnd* parent = nullptr);
    ~CQVSafeColorDlg() override;

    // The window that receives WM_COMMAND 26012 on a help request (message WM_USER + 22). Borrowed; null:
    // none.
    void SetOPALMainWnd(CWnd* pWnd);

    BOOL OnInitDialog() override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnDestroy();
    afx_msg void OnEditLumlow();
    afx_msg void OnEditLumHigh();
    afx_msg void OnEditChroHigh();
    afx_msg void OnBnClickedBtnLumRefresh();
    afx_msg void OnBnClickedBtnChromRefresh();
    afx_msg void OnLumTypeClicked();
    afx_msg void OnBnClickedOk();
    afx_msg LRESULT OnMessageHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTimeCodeEditChangeEx(WPARAM wParam, LPARAM lParam);
    afx_msg void OnBnClickedRadio();

    // Controls to record, record to controls.
    void GetEditValue();
    void SetEditValue();
    // Enables OK while the record differs from what it was.
    void SetDirty();
    // Does nothing; part of the published interface.
    void SetTabStop();

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    void TakeControls();

    _qv_extractrl::CQVNumberEditEx* m_pLumLow = nullptr;     // owned while the window lives
    _qv_extractrl::CQVNumberEditEx* m_pLumHigh = nullptr;    // owned
    _qv_extractrl::CQVNumberEditEx* m_pChromaHigh = nullptr; // owned; the last to come and the first to go
    CWnd* m_pLumUnit = nullptr;                              // not owned, nor are those that follow
    CWnd* m_pChromaUnit = nullptr;
    CWnd* m_pIgnore = nullptr;
    CWnd* m_pWarning = nullptr;
    CWnd* m_pLimit = nullptr;
    _qv_commonctrl::CQVButton* m_pLumRefresh = nullptr;
    _qv_commonctrl::CQVButton* m_pChromaRefresh = nullptr;

  public:
    tag_QVSafeColor m_SafeColor; // filled before DoModal, read after IDOK

  private:
    tag_QVSafeColor m_SafeColorOrg; // as it was when the dialog opened
    CWnd* m_pOPALMainWnd = nullptr; // borrowed
    double m_dLumLowPercent = 0.0;
    double m_dLumHighPercent = 0.0;
};

} // namespace _qv_commonwnd
