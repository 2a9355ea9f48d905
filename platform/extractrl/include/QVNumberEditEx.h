// QVNumberEditEx.h - a skinned edit for one number. Window class "NumberEditClass".
//
//   auto* edit = new CQVNumberEditEx;
//   edit->CreateEx(WS_EX_CLIENTEDGE, L"NumberEditClass", nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect,
//                  this, 2045);
//   edit->LimitText(5);
//   edit->SetDecimals(1);
//   edit->SetRange(-7.3, 109.0);
//   edit->SetPos(100.0);
//
// Messages to the parent:
//   EN_CHANGE (WM_COMMAND)   the user has changed the text, each key; not sent for SetPos, SetRange and
//                            SetDecimals
//   QVN_EDITNOTIFY, 1        the user has finished a new value: the edit lost the focus, or Enter, an arrow
//                            key, Page Up/Down or the wheel was used
//   QVN_EDITNOTIFY, 4        Enter was pressed (after 1, when there is a new value). A parent that does not
//                            answer by posting a command has its default button pressed, as with any edit of
//                            a dialog.
//
// What cannot be taken is refused, and the field shows it (CQVEdit::ShowRefused): of typed texts character by
// character, where a refused decimal point takes the digits behind it along; a pasted text as a whole. Ctrl+Z
// takes back what was typed, pasted or stepped. The range is applied when the value is finished, so that
// every number can be typed; GetPos is inside it always.
#pragma once

#include "QVExtraCtrlDef.h"

#include <QVEdit.h>

namespace _qv_extractrl {

class QVEXTRACTRL_API CQVNumberEditEx : public _qv_commonctrl::CQVEdit {
    DECLARE_DYNAMIC(CQVNumberEditEx)

  public:
    // Range 0 to 100, no decimals, position 0.
    CQVNumberEditEx();
    ~CQVNumberEditEx() override;

    // A child window of class "NumberEditClass". nID: control id. FALSE when the window cannot be made.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) override;

    // The range, both ends included. Swapped limits are put in order, NaN counts as 0, infinities as the
    // largest numbers. A position outside is moved to the nearest end. No message is sent.
    void SetRange(double dMin, double dMax);
    void GetRange(double& dMin, double& dMax) const;

    // Digits behind the point, 0 to 9 (bounded). Shows the position anew; no message is sent.
    void SetDecimals(int nDecimals);
    int GetDecimals() const { return m_nDecimals; }

    // How much an arrow key or a notch of the wheel adds; Shift and Page Up/Down take ten times that. 0 or
    // less (the default) and not finite: one in the last decimal.
    void SetStep(double dStep);

    // The position, bounded to the range (NaN: its lower end), shown with the decimals. A text that is being
    // typed is given up. No message is sent.
    void SetPos(double dPos);

    // The number as it stands, bounded to the range: exactly what SetPos was given until the user changes the
    // text; a text that is no number (empty, "-") gives the position before it.
    double GetPos() const;

    // Ends typing: applies the range, shows the number with its decimals and sends QVN_EDITNOTIFY 1 when it
    // is new. The edit itself does so when it loses the focus and on Enter.
    void ApplyRange();

  protected:
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnEnChange();
    DECLARE_MESSAGE_MAP()

  private:
    struct QVNumberRule Rule() const;
    bool IsEdited() const;
    void ShowPos(bool bTellParent);
    void Step(double dSteps);
    void SendChanged();
    bool MayReplaceSelection(const CString& strNew) const;

    double m_dMin = 0.0;
    double m_dMax = 100.0;
    double m_dStep = 0.0;
    double m_dPos = 0.0;
    double m_dTold = 0.0; // the position the parent knows
    int m_nDecimals = 0;
    int m_nSilent = 0;          // above 0: changes of the text are the program's, not the user's
    int m_nWheelRest = 0;       // wheel movement smaller than a notch
    bool m_bInFraction = false; // a decimal point has just been refused
    CString m_strShown;         // the text of m_dPos; any other text is the user's
};

} // namespace _qv_extractrl
