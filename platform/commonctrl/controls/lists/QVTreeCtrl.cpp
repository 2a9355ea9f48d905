#include "QVTreeCtrl.h"

#include "QVReplaceWnd.h"
#include "RowPainter.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVTreeCtrl, CTreeCtrl)

CQVTreeCtrl::CQVTreeCtrl() = default;

CQVTreeCtrl::~CQVTreeCtrl() = default;

void CQVTreeCtrl::PreSubclassWindow() {
    CTreeCtrl::PreSubclassWindow();
    AttachSkinAndFont(this);
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
        *result = QV_PaintTreeItem(*reinterpret_cast<NMTVCUSTOMDRAW*>(lParam));
        return TRUE;
    }
    return CTreeCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVTreeCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_setup.HasCome(message, false))
        SetUp();
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    LRESULT result = 0;
    if (PaintRows(*this, message, wParam, QVCLR_TREE, result,
                  [this](HDC dc) { return DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc), 0); }))
        return result;
    result = CTreeCtrl::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && m_setup.HasCome(message, true))
        SetUp();
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE)
        Invalidate(FALSE); // the selection changes its colour
    return result;
}

} // namespace _qv_commonctrl
