#include "QVWndEx.h"

#include "SystemControls.h"
#include "fileview/ShellView.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

QVCaptionFigures FrameFigures() {
    QVCaptionFigures figures;
    figures.captionHeightPx = 21;
    figures.closeLeftFromRightPx = 27;
    figures.closeRightFromRightPx = 6;
    figures.closeTopPx = 1;
    figures.closeBottomPx = 17;
    figures.textInsetPx = 5;
    figures.lineInsetPx = 2;
    figures.textColor = QVCLR_TEXT_WINDOW;
    figures.inactiveTextColor = QVCLR_TEXT_WINDOW;
    figures.groundColor = QVCLR_WINDOW;
    return figures;
}

} // namespace

IMPLEMENT_DYNAMIC(CQVWndEx, CWnd)

BEGIN_MESSAGE_MAP(CQVWndEx, CSystemDialogFrame)
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
END_MESSAGE_MAP()

CQVWndEx::CQVWndEx() : CSystemDialogFrame(FrameFigures()) {
}

BOOL CQVWndEx::TakeOver(HWND frame) {
    if (!SubclassWindow(frame))
        return FALSE;
    StripFrame(WS_CLIPCHILDREN); // asked for again when the dialog is complete
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return TRUE;
}

// The system's dialog sets the heights of its own list anew each time it drops down.
LRESULT CQVWndEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CSystemDialogFrame::WindowProc(message, wParam, lParam);
    if (message == WM_COMMAND && LOWORD(wParam) == kFileTypeComboId && HIWORD(wParam) == CBN_DROPDOWN)
        SetComboHeights(reinterpret_cast<HWND>(lParam));
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && m_newViewAction &&
        IsShellView(reinterpret_cast<HWND>(lParam)))
        m_newViewAction(reinterpret_cast<HWND>(lParam));
    return result;
}

HBRUSH CQVWndEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    if (!pDC) // whatever a dialog would answer is replaced, so it is not asked otherwise
        return CSystemDialogFrame::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
    return QV_GetSysBrush(QVBRUSH_CHILD);
}

void CQVWndEx::OnDestroy() {
    if (m_endAction)
        m_endAction();
    CSystemDialogFrame::OnDestroy();
}

// What the system's owner-drawn controls ask belongs to the system's dialog, whose data it is about; the skinned
// controls draw without asking.
void CQVWndEx::OnDrawItem(int, LPDRAWITEMSTRUCT) {
    Default();
}

void CQVWndEx::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    Default();
}

void CQVWndEx::OnDeleteItem(int, LPDELETEITEMSTRUCT) {
    Default();
}

int CQVWndEx::OnCompareItem(int, LPCOMPAREITEMSTRUCT) {
    return static_cast<int>(Default());
}

} // namespace _qv_commonwnd
