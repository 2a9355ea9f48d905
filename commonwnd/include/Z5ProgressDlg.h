// Z5ProgressDlg.h: a modal progress window that is driven through static members.
//
//     CZ5ProgressDlg::EndProgressWnd(0); // the window never clears it
//     CZ5ProgressDlg::m_bExist = 0;      // cleared as it opens, but the work may ask sooner
//     std::thread work([&] {
//         for (int i = 0; i < count && !CZ5ProgressDlg::Exist(); ++i) {
//             Copy(files[i]);
//             CZ5ProgressDlg::SetCurPos(100 * (i + 1) / count, 100 * (i + 2) / count);
//         }
//         CZ5ProgressDlg::EndProgressWnd(1);
//     });
//     CZ5ProgressDlg::ProgressWndDoModle(title, 100, 0.5f); // returns when the work has ended it
//     work.join();
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>
#include <QVListControls.h>
#include <QVStatic.h>

namespace _qv_commonwnd {

// One window at a time. Between two reports the bar moves by itself, a fixed step every 100 ms; the message
// carries 0 to 20 trailing dots in turn.
//
// Threads: ProgressWndDoModle runs on the user-interface thread. SetCurPos, SetTextShow, EndProgressWnd and
// Exist may be called from any thread while the window runs; the window shows what they stored at its next
// tick. SetCurPos, EndProgressWnd and Exist store and load single values; SetTextShow copies under a lock
// that nobody holds longer than a copy takes. None of them waits for the window.
class QVCOMMONWND_API CZ5ProgressDlg : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CZ5ProgressDlg)

  public:
    // Shows the window and returns when it has closed. `title`: null leaves the title empty. `range`: upper
    // end of the bar, 1 to 1000; anything else is 100 (the lower end is 0). `step`: what the bar moves by
    // itself every 100 ms, in units of the range; 0, less and NaN: it moves by SetCurPos only. Clears what
    // Exist answers. The window never clears EndProgressWnd: call EndProgressWnd(0) before showing a second
    // one.
    static void ProgressWndDoModle(wchar_t* title, int range, float step);

    // Puts the bar at `cur` (units of the range; beyond its ends the bar stands at that end) and announces
    // `next` as the position of the next report; a `next` that is not above `cur` announces nothing.
    static void SetCurPos(int cur, int next);

    // The message above the bar, copied into strText at once; null is ignored. The last text counts,
    // whichever thread set it. One that is too long for its line ends in an ellipsis there.
    static void SetTextShow(wchar_t* text);

    // Non-zero: at its next tick the window fills the bar and closes. 0 takes it back.
    static void EndProgressWnd(int end);

    // 1 after the user has pressed the cancel button, else 0. The window stays until the host ends it. Keeps
    // the answer until the next window opens: a host whose work starts before that sets m_bExist to 0 first.
    static int Exist();

    static int m_bEndWnd;   // see EndProgressWnd; 0 at load
    static float m_nCurPos; // position of the bar in units of the range; 0 at load and with each new window
    static int m_nNextPos;  // announced next position, -1 for none; 0 at load
    static int m_bExist;    // see Exist
    // The message without its dots, always what was set last. A thread may read it while no other calls
    // SetTextShow: where a worker sets the texts, that is the worker alone until it has ended.
    static CString strText;

    // `parent`: null for none; ProgressWndDoModle passes none.
    explicit CZ5ProgressDlg(CWnd* parent = nullptr);
    ~CZ5ProgressDlg() override;

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* msg) override; // Enter does nothing, whatever has the focus
    void OnOK() override;                        // nothing: Enter never closes the window
    void OnCancel() override;                    // nothing: Escape never closes the window
    void OnSkinChange(UINT reason, HWND wnd) override;
    void DoDataExchange(CDataExchange* dx) override;

    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnBnClickedExist();

    _qv_commonctrl::CQVStatic m_stText;
    _qv_commonctrl::CQVProgressCtrl m_ctrlProgress;
    CString m_strTitle;
    int m_nRange = 100;
    float m_fStep = 0.0f;
    int m_nSlowLimit = 0; // threshold of the slow-down rule

  protected:
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
