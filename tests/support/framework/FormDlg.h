// The dialog most tests run: what it does at its start and at a click is given by the test.
#pragma once

#include "afxcmn.h"
#include "test_ids.h"

#include <functional>

class FormDlg : public CDialog {
  public:
    explicit FormDlg(CWnd* pParent = nullptr, UINT nID = IDD_FORM) : CDialog(nID, pParent) {}

    std::function<BOOL(FormDlg&)> m_onInit;      // the answer of OnInitDialog
    std::function<void(FormDlg&)> m_onGo;        // the "Go" button
    std::function<void(FormDlg&, UINT)> m_onAny; // every message, before it is handled
    int m_nPreTranslated = 0;
    int m_nPostNcDestroy = 0;

    BOOL OnInitDialog() override {
        const BOOL result = CDialog::OnInitDialog();
        return m_onInit ? m_onInit(*this) : result;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        ++m_nPreTranslated;
        return CDialog::PreTranslateMessage(pMsg);
    }
    void PostNcDestroy() override { ++m_nPostNcDestroy; }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (m_onAny)
            m_onAny(*this, message);
        return CDialog::WindowProc(message, wParam, lParam);
    }
    afx_msg void OnGo() {
        if (m_onGo)
            m_onGo(*this);
    }
    DECLARE_MESSAGE_MAP()
};
