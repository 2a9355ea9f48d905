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

    // The characters that typing and pasting may bring in; everything else is refused, of a pasted text the
    // accepted characters come in. Empty (the default): all. Texts set by the program are not looked at, nor
    // is the text that is there already.
    void SetIncludeKey(const CString& strKeys);
    CString GetIncludeKey() const { return m_strIncludeKey; }

  protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    CString m_strIncludeKey;
};

} // namespace _qv_extractrl
