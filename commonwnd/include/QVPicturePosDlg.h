// QVPicturePosDlg.h: places a picture inside a frame, by dragging it or by typing its top-left corner.
//
//     CQVPicturePosDlg dialog(this);
//     dialog.m_szRange = CSize(1920, 1080);
//     dialog.m_szPicture = CSize(640, 360);
//     dialog.m_ptPos = CPoint(100, 100);
//     dialog.m_pfnPosChange = [](void* player, CQVPicturePosDlg* now) {
//         static_cast<Player*>(player)->Preview(now->m_ptPos);
//     };
//     dialog.m_pPosChangeData = player;
//     if (dialog.DoModal() == IDOK)
//         title.MoveTo(dialog.m_ptPos);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>
#include <QVExtraCtrl.h>

namespace _qv_commonwnd {

class QVCOMMONWND_API CQVPicturePosDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVPicturePosDlg)

  public:
    // Called on the window's thread after every change of the position, with m_pPosChangeData and the dialog.
    // It must not close the dialog and must not throw.
    typedef void (*PosChangeCallback)(void* data, CQVPicturePosDlg* dialog);

    explicit CQVPicturePosDlg(CWnd* parent = nullptr);
    ~CQVPicturePosDlg() override;

    // IDOK, and m_ptPos is the answer; IDCANCEL: m_ptPos is where the user left the picture, take it only on
    // IDOK; -1 when the dialog could not be made.
    INT_PTR DoModal() override;

    // The picture's top-left corner in the frame, pixels: initial value and answer. Typed figures are read
    // from their start ("12px" is 12) and bounded to 32 bits.
    CPoint m_ptPos;
    CSize m_szRange;        // width and height of the frame, pixels
    CSize m_szPicture;      // width and height of the picture, pixels
    int m_nTrackerMode = 0; // _qv_extractrl::QVTrackerMode: which way the picture may be dragged
    PosChangeCallback m_pfnPosChange = nullptr; // null: none
    void* m_pPosChangeData = nullptr;           // the call-back's first argument; borrowed
    BOOL m_bInited = FALSE;                     // FALSE while the dialog itself writes its fields

    BOOL OnInitDialog() override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    afx_msg void OnBnClickedOk();
    afx_msg void OnBnClickedDef();
    afx_msg LRESULT OnPosChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEnChangeXpos();
    afx_msg void OnEnChangeYpos();

  protected:
    DECLARE_MESSAGE_MAP()

  private:
    void GetDefSize(CPoint& pos, int initialise);
    void ShowPos();
    void MoveTracker();
    void OnTyped(int id, LONG& coordinate);
    void TellHost();

    _qv_extractrl::CQVRectTracker* m_pTracker = nullptr; // not owned; null before initialisation
    _qv_extractrl::CQVEditEx m_XEdit;
    _qv_extractrl::CQVEditEx m_YEdit;
};

} // namespace _qv_commonwnd
