#include "ViewBar.h"

#include <QVPaintMemoDC.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

IMPLEMENT_DYNAMIC(CViewBar, CToolBarCtrl)

BEGIN_MESSAGE_MAP(CViewBar, CToolBarCtrl)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CViewBar::CViewBar() = default;

CViewBar::~CViewBar() = default;

void CViewBar::PreSubclassWindow() {
    CToolBarCtrl::PreSubclassWindow();
    AttachSkin(this);
}

BOOL CViewBar::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CViewBar::OnNcPaint() {
    // A flat bar has no frame to paint; the system would draw one line of it in its own colours.
}

void CViewBar::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_WINDOW);
    const int count = GetButtonCount();
    for (int index = 0; index < count; ++index)
        PaintButton(&dc, index);
}

void CViewBar::PaintButton(CDC* dc, int index) const {
    TBBUTTON button = {};
    CRect rect;
    if (!GetButton(index, &button) || (button.fsState & TBSTATE_HIDDEN) || (button.fsStyle & BTNS_SEP) ||
        !GetItemRect(index, &rect))
        return;
    const bool enabled = (button.fsState & TBSTATE_ENABLED) != 0;
    const bool pressed = (button.fsState & (TBSTATE_PRESSED | TBSTATE_CHECKED)) != 0;
    const bool hot = enabled && GetHotItem() == index;
    if (pressed || hot) {
        dc->FillSolidRect(rect, QV_GetSysColor(pressed ? QVCLR_CTRL_PRESSED : QVCLR_CTRL_HOT));
        CBrush border(QV_GetSysColor(QVCLR_CTRL_BORDER));
        dc->FrameRect(rect, &border);
    }
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessage(TB_GETIMAGELIST));
    int width = 0;
    int height = 0;
    if (!images || button.iBitmap < 0 || !::ImageList_GetIconSize(images, &width, &height))
        return;
    const int x = rect.left + (rect.Width() - width) / 2;
    const int y = rect.top + (rect.Height() - height) / 2;
    ::ImageList_DrawEx(images, button.iBitmap, dc->GetSafeHdc(), x, y, 0, 0, CLR_NONE,
                       QV_GetSysColor(QVCLR_WINDOW), ILD_TRANSPARENT | (enabled ? 0U : ILD_BLEND50));
}

} // namespace _qv_commonwnd
