// QVDialogPanel.h: what the panels that the file dialog puts into its frame have in common.
#pragma once

#include "QVCommonWndApi.h"

#include <QVBaseCtrl.h>

namespace _qv_commonwnd {

// A child window with the skin's ground, which the tab key passes through. It repaints itself when the skin changes.
class QVCOMMONWND_API CQVDialogPanel : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
  protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
