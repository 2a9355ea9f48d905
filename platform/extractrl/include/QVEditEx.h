// QVEditEx.h - a skinned edit that accepts chosen characters only.
//
//   CQVEditEx edit;
//   edit.SubclassDlgItem(IDC_VALUE, this);
//   edit.SetIncludeKey(L"0123456789-");
#pragma once

#include "QVExtraCtrlDef.h"

#include <QVEdit.h>

namespace _qv_extractrl {

class QVEXTRACTRL_API CQVEditEx : public _qv_commonctrl::CQVEdit {
    DECLARE_DYNAMIC(CQVEditEx)

  public:
    CQVEditEx();
    ~CQVEditEx() override;

    // The characters that typing and pasting may bring in; everything else is refused, and the field shows it
    // (CQVEdit::ShowRefused). A pasted text with any other character is refused whole; so are digits typed
    // behind a refused decimal point, until the caret is moved or something is erased. Empty (the default):
    // all characters, with the style ES_NUMBER digits when typing. Texts set by the program are not looked
    // at, nor is the text that is there already.
    void SetIncludeKey(const CString& strKeys);
    CString GetIncludeKey() const { return m_strIncludeKey; }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    bool Accepts(wchar_t c) const;

    CString m_strIncludeKey;
    bool m_bInFraction = false; // a decimal point has just been refused
};

} // namespace _qv_extractrl
