#include "QVComboDTBox.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVComboDTBox, CQVDirTreeCtrl)

CQVComboDTBox::CQVComboDTBox() = default;

CQVComboDTBox::~CQVComboDTBox() = default;

// WS_BORDER gives the window one pixel of frame; the native colour of it is the system's.
LRESULT CQVComboDTBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CQVDirTreeCtrl::WindowProc(message, wParam, lParam);
    if (message == WM_NCPAINT && (GetStyle() & WS_BORDER)) {
        CWindowDC dc(this);
        CRect frame;
        GetWindowRect(frame);
        frame.OffsetRect(-frame.TopLeft());
        const COLORREF color = QV_GetSysColor(QVCLR_TREE_FRAME);
        dc.Draw3dRect(frame, color, color);
    }
    return result;
}

} // namespace _qv_commonctrl
