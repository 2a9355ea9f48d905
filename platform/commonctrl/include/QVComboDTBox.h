// QVComboDTBox.h: the directory tree with a skinned border.
#pragma once

#include "QVDirTreeCtrl.h"

namespace _qv_commonctrl {

// The directory tree as the host functions create it: the tree as a window of its own with skinned frame.
class QVCOMMONCTRL_API CQVComboDTBox : public CQVDirTreeCtrl {
    DECLARE_DYNAMIC(CQVComboDTBox)

  public:
    CQVComboDTBox();
    ~CQVComboDTBox() override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace _qv_commonctrl
