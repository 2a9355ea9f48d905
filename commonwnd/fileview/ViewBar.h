// The small tool bar of the system's file dialog beside the look-in combo box, drawn with the skin.
#pragma once

#include <QVBaseCtrl.h>

#include <afxcmn.h>

namespace _qv_commonwnd {

class CViewBar : public CToolBarCtrl, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CViewBar)

  public:
    CViewBar();
    ~CViewBar() override;

  protected:
    void PreSubclassWindow() override;
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

  private:
    void PaintButton(CDC* dc, int index) const;
};

} // namespace _qv_commonwnd
