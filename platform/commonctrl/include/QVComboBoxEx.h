// QVComboBoxEx.h: a skinned combo box with images and indentation.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// A ComboBoxEx32 window: its inner combo box and edit field are skinned.
class QVCOMMONCTRL_API CQVComboBoxEx : public CComboBoxEx, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboBoxEx)

  public:
    CQVComboBoxEx();
    ~CQVComboBoxEx() override;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    class InnerCombo* m_pInner;
};

} // namespace _qv_commonctrl
