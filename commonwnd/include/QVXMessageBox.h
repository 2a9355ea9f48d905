// QVXMessageBox.h: a Yes/No question with a "don't ask again" tick box.
//
//     switch (QV_MessageBox(L"Project", L"Replace the clip in every sequence?", 0, this)) {
//     case QVMESSAGE_YES:    ReplaceAll(); break;
//     case QVMESSAGE_NO:     break;
//     case QVMESSAGE_CANCEL: return FALSE;
//     }
#pragma once

#include "QVCommonWndApi.h"
#include <QVDialog.h>

namespace _qv_commonwnd {

// The answers of a box.
enum QVMessageAnswer : UINT {
    QVMESSAGE_YES = 2,
    QVMESSAGE_NO = 4,     // also when the box was closed without a button, or could not be shown
    QVMESSAGE_CANCEL = 8, // Escape
};

// Asks and waits. `caption` is the title, `text` the question; both may be empty, and line breaks in the text
// count. `type` and `parent` have no effect: the box always shows Yes, No and the tick box, and its owner is
// the host's main window (AfxGetMainWnd), if there is one. Answers a QVMessageAnswer. When the user ticked
// the box at Yes or No, that answer is remembered for the process: every later call, whatever its question,
// returns it at once and shows nothing, until QV_MessageRest. User-interface thread.
QVCOMMONWND_API UINT QV_MessageBox(CString caption, CString text, UINT type, CWnd* parent);

// Forgets the remembered answer, so that the next QV_MessageBox asks again. Answers 0.
QVCOMMONWND_API UINT QV_MessageRest();

// The box itself, for a host that wants to show one whatever was remembered. Fill m_strCaption and m_strText,
// run DoModal, read m_nResult. An object may be shown again.
//
// The box grows for its question and never shrinks below the template: its window becomes at least as wide as
// the text (measured in the question's font, broken only at line breaks) plus 16 pixels, and at least as high
// plus 86. It never outgrows the work area of its monitor; a question that needs more is wrapped and cut
// there. The keyboard works as Enter (Yes) and Escape (Cancel) only; every other key is swallowed.
class QVCOMMONWND_API CQVXMessageBox : public _qv_commonctrl::CQVDialog {
    DECLARE_DYNAMIC(CQVXMessageBox)

  public:
    explicit CQVXMessageBox(CWnd* parent = nullptr);
    ~CQVXMessageBox() override;

    // Shows the box until it is answered. IDOK after a button or key, IDCANCEL when it was closed otherwise,
    // -1 when it could not be created; the answer itself is m_nResult.
    INT_PTR DoModal() override;

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* msg) override;
    void OnSkinChange(UINT reason, HWND wnd) override;
    void DoDataExchange(CDataExchange* dx) override;

    // The buttons. The first two remember their answer when the tick box is ticked; Cancel (the button itself
    // is always hidden) forgets a remembered one; the tick box does nothing until a button reads it.
    afx_msg void OnBnClickedYes();
    afx_msg void OnBnClickedNo();
    afx_msg void OnBnClickedCancel();
    afx_msg void OnBnClickedNoask();

    CString m_strCaption; // title; empty: none
    CString m_strText;    // question; empty: none
    UINT m_nResult;       // QVMessageAnswer of the last showing; QVMESSAGE_NO before the first
    UINT m_nType;         // type given by the caller; 4 once the box is up, read by nothing

  protected:
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
