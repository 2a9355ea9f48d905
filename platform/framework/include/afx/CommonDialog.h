// CCommonDialog: the base of the system's dialogs.
#pragma once

#include "Dialog.h"

class AFXFRAME_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
  public:
    explicit CCommonDialog(CWnd* pParentWnd);

  protected:
    void OnOK() override;
    void OnCancel() override;
};
