// QVFilePathShowTip.h: lists files that are not there and asks whether to go on.
//
//     CStringArray missing; // paths of the project's media that do not exist
//     CQVFilePathShowTip prompt(this);
//     prompt.SetFile(missing);
//     if (prompt.DoModal() == IDOK)
//         OpenWithoutThem();
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>

namespace _qv_commonwnd {

// DoModal answers IDOK (go on) or IDCANCEL (stop), and -1 when the dialog could not be created. The question
// and the two answers are the template's texts; a dictionary call-back that the host has set
// (QV_SetDictCallBack) translates them, the library sets none. Made for long lists: the time it takes is that
// of the bare list control. User-interface thread.
class QVCOMMONWND_API CQVFilePathShowTip : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVFilePathShowTip)

  public:
    explicit CQVFilePathShowTip(CWnd* parent = nullptr);
    ~CQVFilePathShowTip() override;

    // The paths to list, copied in their order; they replace those of an earlier call. To be called before
    // each DoModal: the window forgets them when it closes. Nothing checks that the files are really missing.
    void SetFile(CStringArray& files);

    CStringArray m_aFiles; // see SetFile

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* dx) override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnDestroy();
    afx_msg void OnBnClickedOk();
    afx_msg void OnBnClickedCancel();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnListEmptied(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
