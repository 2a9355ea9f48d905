// QVSetResPath.h: the user sets the two working folders of the application.
//
//     CQVSetResPath dialog(this);
//     if (dialog.DoModal() == IDOK)
//         UseFolders(dialog.m_strResPath, dialog.m_strMediaPath);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>

namespace _qv_commonwnd {

// Both folders must exist before the dialog closes with OK; a message names each that does not. They are
// stored, without trailing back-slashes, as profile texts "PathSet"/"ResPath" and "PathSet"/"MediaPath", and
// only when one has changed. OK is enabled by the first change that is more than one of letter case. While
// QV_GetState(0) is non-zero, the resource folder cannot be changed: its field and button are hidden (the
// folder must exist all the same). User-interface thread.
class QVCOMMONWND_API CQVSetResPath : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVSetResPath)

  public:
    explicit CQVSetResPath(CWnd* parent = nullptr);
    ~CQVSetResPath() override;

    // IDOK: both folders exist and are stored. IDCANCEL: nothing was stored. -1: the dialog could not be
    // created.
    INT_PTR DoModal() override;

    // The folders shown when the dialog opens, and after IDOK the user's. An empty one is filled from the
    // profile as the dialog opens, and stays so when it is cancelled.
    CString m_strResPath;
    CString m_strMediaPath;

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* dx) override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnBnClickedButton1(); // browses for the resource folder
    afx_msg void OnBnClickedButton2(); // browses for the media folder
    afx_msg void OnBnClickedOk();
    afx_msg void OnBnClickedCancel();
    afx_msg void OnEnChangeRespath();
    afx_msg void OnEnChangeFilepath();

  protected:
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
