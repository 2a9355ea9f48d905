// The places bar of the file dialog: the column of shortcuts to folders.
#pragma once

#include <QVBaseCtrl.h>

#include <afxext.h>

namespace _qv_commonwnd {

class CToolBarEx : public CToolBar, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CToolBarEx)

  public:
    CToolBarEx();
    ~CToolBarEx() override;

  protected:
    void PreSubclassWindow() override;
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

  private:
    void PaintButton(CDC* dc, int index) const;
    void PaintImage(CDC* dc, const CRect& button, int image) const;
    CString TextOfButton(int command) const;
};

} // namespace _qv_commonwnd
