#include "QVListCtrl.h"

#include "module/RedrawPause.h"
#include "QVReplaceWnd.h"
#include "RowPainter.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVListCtrl, CListCtrl)

CQVListCtrl::CQVListCtrl() = default;

CQVListCtrl::~CQVListCtrl() = default;

void CQVListCtrl::PreSubclassWindow() {
    CListCtrl::PreSubclassWindow();
    AttachSkinAndFont(this);
    m_setup.Reset();
    Invalidate(FALSE);
}

void CQVListCtrl::SetUp() {
    ModifyStyle(0, WS_CLIPCHILDREN); // the picture of the rows must not cover the header
    ApplyColors();
    TakeHeader();
    QV_ReplaceWnd(m_hWnd);
}

void CQVListCtrl::ApplyColors() {
    const COLORREF ground = QV_GetSysColor(QVCLR_LIST);
    SetBkColor(ground);
    SetTextBkColor(ground);
    SetTextColor(QV_GetSysColor(QVCLR_TEXT_LIST));
}

// The control makes its header with the first column, or when it is switched to the report view.
void CQVListCtrl::TakeHeader() {
    if (m_header.m_hWnd)
        return;
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    if (header && !CWnd::FromHandlePermanent(header))
        m_header.SubclassWindow(header);
}

// Neither the list's own scroll bars nor the skin's are worked out anew with every row, and the rows go
// straight to the control: what stands before it has no use for them.
BOOL CQVListCtrl::AppendRows(const CStringArray& texts) {
    if (!m_hWnd)
        return FALSE;
    const RedrawPause pause(m_hWnd);
    const INT_PTR count = texts.GetSize();
    LVITEMW row = {};
    row.mask = LVIF_TEXT;
    row.iItem = GetItemCount();
    SetItemCount(row.iItem + static_cast<int>(count)); // room at once, not bit by bit
    for (INT_PTR i = 0; i < count; ++i, ++row.iItem) {
        row.pszText = const_cast<LPWSTR>(texts[i].GetString());
        if (DefWindowProc(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row)) < 0)
            return FALSE;
    }
    return TRUE;
}

void CQVListCtrl::OnSkinChange(UINT reason, HWND wnd) {
    ApplyColors();
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

BOOL CQVListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* notification = reinterpret_cast<NMHDR*>(lParam);
    if (message == WM_NOTIFY && notification->code == static_cast<UINT>(NM_CUSTOMDRAW) && result) {
        *result = QV_PaintListItem(*reinterpret_cast<NMLVCUSTOMDRAW*>(lParam));
        return TRUE;
    }
    return CListCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_setup.HasCome(message, false))
        SetUp();
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    LRESULT result = 0;
    if (PaintRows(*this, message, wParam, QVCLR_LIST, result,
                  [this](HDC dc) { return DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc), 0); }))
        return result;
    result = CListCtrl::WindowProc(message, wParam, lParam);
    switch (message) {
    case WM_CREATE:
        if (m_setup.HasCome(message, true))
            SetUp();
        break;
    case LVM_INSERTCOLUMNW:
    case LVM_INSERTCOLUMNA:
    case LVM_SETVIEW:
    case WM_STYLECHANGED:
        TakeHeader();
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE: // the selection changes its colour
        Invalidate(FALSE);
        break;
    }
    return result;
}

} // namespace _qv_commonctrl
