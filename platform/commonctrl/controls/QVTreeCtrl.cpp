#include "QVListControls.h"

#include "QVMemoDC.h"
#include "QVReplaceWnd.h"
#include "paint/QVRowPaint.h"
#include "QVTreeRows.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVTreeCtrl, CTreeCtrl)

LRESULT QV_PaintTreeItem(NMTVCUSTOMDRAW& draw) {
    return PaintTreeItem(draw);
}

CQVTreeCtrl::CQVTreeCtrl() = default;

CQVTreeCtrl::~CQVTreeCtrl() = default;

void CQVTreeCtrl::PreSubclassWindow() {
    CTreeCtrl::PreSubclassWindow();
    AttachSkin(this);
    m_setup.Reset();
    Invalidate(FALSE);
}

void CQVTreeCtrl::SetUp() {
    ApplyColors();
    QV_ReplaceWnd(m_hWnd);
}

void CQVTreeCtrl::ApplyColors() {
    SetBkColor(QV_GetSysColor(QVCLR_TREE));
    SetTextColor(QV_GetSysColor(QVCLR_TEXT_TREE));
    SetLineColor(QV_GetSysColor(QVCLR_GRID));
}

void CQVTreeCtrl::OnSkinChange(UINT reason, HWND wnd) {
    ApplyColors();
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

BOOL CQVTreeCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* notification = reinterpret_cast<NMHDR*>(lParam);
    if (message == WM_NOTIFY && notification->code == static_cast<UINT>(NM_CUSTOMDRAW) && result) {
        *result = PaintTreeItem(*reinterpret_cast<NMTVCUSTOMDRAW*>(lParam));
        return TRUE;
    }
    return CTreeCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVTreeCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_setup.HasCome(message, false))
        SetUp();
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE; // painted with the items
    case WM_PAINT:
        if (wParam == 0) {
            CQVPaintMemoDC dc(this, QVCLR_TREE);
            return DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
        }
        break;
    case WM_CTLCOLOREDIT:
        return ColorLabelEdit(reinterpret_cast<HDC>(wParam));
    }
    const LRESULT result = CTreeCtrl::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && m_setup.HasCome(message, true))
        SetUp();
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE)
        Invalidate(FALSE); // the selection changes its colour
    return result;
}

} // namespace _qv_commonctrl
