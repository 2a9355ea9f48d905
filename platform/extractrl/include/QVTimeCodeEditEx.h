// QVTimeCodeEditEx.h - a skinned edit for a frame, shown as timecode or as a frame count. Window class
// "QVTimeCodeEditExClass".
//
//   auto* edit = static_cast<CQVTimeCodeEditEx*>(GetDlgItem(31033));   // made by the dialog template
//   edit->SetFrameRate(_qv_commonctrl::TimecodeFrameRate(29.97, 1));
//   edit->SetFrame(1800, FALSE);                                       // shows 00:01:00;02
//
// Keys. Timecode: with the whole text selected (Tab into it, Ctrl+A) digits fill from the right, and anything
// that QV_ParseTimecode reads may be typed; with one field selected (click, Left, Right, Home, End) digits
// overtype that field and go on to the next. Up, Down and the wheel change the selected field by one, with
// Shift by ten; Delete and Backspace set it to 0. Frame count: a plain edit of digits. Both: '+' or '-' typed
// first moves the position by that much, '=' typed first makes '-' a sign, and a '-' that stands before a
// negative frame stays its sign; Enter or leaving the edit finishes, and a text that stands for no frame (an
// empty one) gives the frame from before the typing; Ctrl+Z goes back to the value before the last change by
// the user. Escape belongs to the dialog. Pasted texts are read like typed ones; '-' before a complete label
// or before a count is the sign of a negative frame. What cannot be read is refused, and the field shows it
// (CQVEdit::ShowRefused); a decimal point that a frame count refuses takes the digits behind it along.
//
// Messages to the parent:
//   QVN_EDITNOTIFY, 1   the frame has changed: with each key that makes one, or by SetFrame with bNotify
//   QVN_EDITNOTIFY, 4   Enter was pressed. A parent that does not answer by posting a command has its default
//                       button pressed, as with any edit of a dialog.
#pragma once

#include "QVExtraCtrlDef.h"
#include "QVTimecodeFrameRate.h"

#include <QVEdit.h>

namespace _qv_extractrl {

enum QVTimeCodeEditMode : int {
    QVTIMECODE_LABEL = 0,  // HH:MM:SS:FF
    QVTIMECODE_FRAMES = 1, // a plain count of frames
};

class QVEXTRACTRL_API CQVTimeCodeEditEx : public _qv_commonctrl::CQVEdit {
    DECLARE_DYNAMIC(CQVTimeCodeEditEx)

  public:
    // 25 frames a second, timecode, frame 0.
    CQVTimeCodeEditEx();
    ~CQVTimeCodeEditEx() override;

    // A child window of class "QVTimeCodeEditExClass". nID: control id. FALSE when the window cannot be made.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) override;

    // A QVTimeCodeEditMode; other values count as QVTIMECODE_LABEL. The frame stays.
    void SetEditMode(int nMode);
    int GetEditMode() const;

    // The frame stays, its label is that of the new rate.
    void SetFrameRate(_qv_commonctrl::TimecodeFrameRate rate);
    _qv_commonctrl::TimecodeFrameRate GetFrameRate() const;

    // The frame, any 64-bit number. Another one than before gives up a text that is being typed and what
    // Ctrl+Z would go back to; bNotify TRUE: the parent gets QVN_EDITNOTIFY 1 for it.
    void SetFrame(__int64 nFrame, BOOL bNotify);
    // The frame as it stands, with what has been typed so far.
    __int64 GetFrame() const;

  protected:
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCut(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnClear(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUndo(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    class QVTimecodeTyping& Typing();
    bool ShowTyping();
    bool IsReadOnly() const;
    void Step(int nSteps);

    class QVTimecodeTyping* m_pTyping; // owned: what the keys have made of the frame so far
    bool m_bShowing = false;           // the text is being set by the control itself
    int m_nWheelRest = 0;              // wheel movement smaller than a notch
};

} // namespace _qv_extractrl
