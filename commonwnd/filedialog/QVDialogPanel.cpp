#include "QVDialogPanel.h"

#include <QVPaintMemoDC.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

BEGIN_MESSAGE_MAP(CQVDialogPanel, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

void CQVDialogPanel::OnPaint() {
    CQVPaintMemoDC memory(this, QVCLR_WINDOW);
}

BOOL CQVDialogPanel::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// What shows round the corners of the controls.
HBRUSH CQVDialogPanel::OnCtlColor(CDC* pDC, CWnd*, UINT) {
    if (pDC)
        pDC->SetBkMode(TRANSPARENT);
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

void CQVDialogPanel::OnDestroy() {
    DetachSkin();
    CWnd::OnDestroy();
}

} // namespace _qv_commonwnd
