#include "QVCheckLBox.h"

#include "ComboParts.h"

namespace _qv_commonctrl {

LRESULT CQVCheckLBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: // the second press of a quick pair toggles again
        if (const int item = ListItemAt(*this, CPoint(lParam)); item >= 0 && CheckCombo()) {
            SetCurSel(item);
            CheckCombo()->Toggle(item);
            return 0;
        }
        break;
    case WM_LBUTTONUP:
        if (ListItemAt(*this, CPoint(lParam)) >= 0)
            return 0;
        break;
    default:
        break;
    }
    const LRESULT result = CQVComboLBox::WindowProc(message, wParam, lParam);
    if (message == WM_WINDOWPOSCHANGED && CheckCombo() &&
        (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_HIDEWINDOW))
        CheckCombo()->OnListClosed();
    return result;
}

} // namespace _qv_commonctrl
