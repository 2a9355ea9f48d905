#include "QVTreeView.h"

#include <QVListControls.h>
#include <QVPaintMemoDC.h>
#include <QVReplaceWnd.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

BEGIN_MESSAGE_MAP(CQVTreeView, CWnd)
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_VSCROLL()
    ON_WM_CTLCOLOR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

BOOL CQVTreeView::TakeOver(HWND tree) {
    if (!tree || !SubclassWindow(tree))
        return FALSE;
    QV_ReplaceWnd(m_hWnd);
    QV_SetReplaceCorner(m_hWnd, QVCLR_TREE);
    ApplySkin();
    return TRUE;
}

void CQVTreeView::GiveBack() {
    if (!m_hWnd)
        return;
    QV_UnReplaceWnd(m_hWnd);
    UnsubclassWindow();
}

void CQVTreeView::ApplySkin() {
    if (!m_hWnd)
        return;
    SendMessage(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(QV_GetSysColor(QVCLR_TEXT_TREE)));
    SendMessage(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(QV_GetSysColor(QVCLR_TREE)));
    SendMessage(TVM_SETLINECOLOR, 0, static_cast<LPARAM>(QV_GetSysColor(QVCLR_GRID)));
    Invalidate(FALSE);
}

// Reaches the tree where its parent is a window of the framework; elsewhere the rows have the skin's colours
// and the system's selection.
BOOL CQVTreeView::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_NOTIFY && result &&
        reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(NM_CUSTOMDRAW)) {
        *result = QV_PaintTreeItem(*reinterpret_cast<NMTVCUSTOMDRAW*>(lParam));
        return TRUE;
    }
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}

// The default processing would paint the system's scroll bars over the skin's. The corner between the bars is theirs
// (QV_SetReplaceCorner).
void CQVTreeView::OnNcPaint() {
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    if (window != client)
        Invalidate(TRUE);
}

BOOL CQVTreeView::OnEraseBkgnd(CDC*) {
    return TRUE; // painted with the items
}

void CQVTreeView::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_TREE);
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
}

void CQVTreeView::OnVScroll(UINT, UINT, CScrollBar*) {
    QVReplaceData bars;
    if (QV_GetReplaceData(m_hWnd, bars) && bars.bVert) {
        CRect window;
        GetWindowRect(&window);
        ScreenToClient(&window);
        bars.rcVert.OffsetRect(window.TopLeft());
        RedrawWindow(bars.rcVert, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    Default();
}

HBRUSH CQVTreeView::OnCtlColor(CDC* dc, CWnd*, UINT) {
    if (dc) { // the field in which a new folder is named
        dc->SetTextColor(QV_GetSysColor(QVCLR_TEXT_TREE));
        dc->SetBkColor(QV_GetSysColor(QVCLR_WINDOW));
    }
    return QV_GetSysBrush(QVBRUSH_CHILD);
}

// The selection changes its colour.
void CQVTreeView::OnSetFocus(CWnd*) {
    Default();
    Invalidate(FALSE);
}

void CQVTreeView::OnKillFocus(CWnd*) {
    Default();
    Invalidate(FALSE);
}

} // namespace _qv_commonwnd
