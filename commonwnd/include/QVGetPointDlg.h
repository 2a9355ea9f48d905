// QVGetPointDlg.h: asks for a position on a timeline, as timecode or as a count of frames.
//
//     CQVGetPointDlg dialog(this);
//     dialog.SetFrameRate({29.97, 1});
//     dialog.m_nFrame = player.Frame();
//     if (dialog.DoModal() == IDOK)
//         player.Seek(dialog.m_nFrame);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>
#include <QVExtraCtrl.h>

namespace _qv_commonwnd {

// Both fields show the same position and follow each other while the user types. Enter in either confirms.
class QVCOMMONWND_API CQVGetPointDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVGetPointDlg)

  public:
    explicit CQVGetPointDlg(CWnd* parent = nullptr);
    ~CQVGetPointDlg() override;

    // How frames are counted and labelled; call before DoModal. Without it: 25 frames a second.
    void SetFrameRate(_qv_commonctrl::TimecodeFrameRate rate);

    // IDOK, and m_nFrame is the answer; IDCANCEL, and m_nFrame is as it was; -1 when the dialog could not be
    // made.
    INT_PTR DoModal() override;

    long long m_nFrame = 0; // position in frames from 0: initial value and answer

    BOOL OnInitDialog() override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnBnClickedOk();
    afx_msg LRESULT OnTimeCodeChange(WPARAM code, LPARAM sender);

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    _qv_extractrl::CQVTimeCodeEditEx* TakeEdit(int id);

    _qv_extractrl::CQVTimeCodeEditEx* m_pTimeCodeEdit = nullptr; // not owned
    _qv_extractrl::CQVTimeCodeEditEx* m_pFrameEdit = nullptr;    // not owned
    _qv_commonctrl::TimecodeFrameRate m_FrameRate;
};

} // namespace _qv_commonwnd
