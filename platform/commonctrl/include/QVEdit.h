// QVEdit.h: skinned edit field: skin ground and text, a two-line frame, accent frame while it has the focus.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

class QVCOMMONCTRL_API CQVEdit : public CEdit, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVEdit)

  public:
    CQVEdit();
    ~CQVEdit() override;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace _qv_commonctrl
