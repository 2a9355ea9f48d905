#include "QVComboLBox.h"

#include "ComboParts.h"
#include "ComboRow.h"
#include "controls/NativePaintPause.h"
#include "module/Guards.h"
#include "QVReplaceWnd.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVComboLBox, CListBox)

namespace {

// Messages at which the system's list draws at once, without telling anybody.
bool DrawsAtOnce(UINT message) {
    switch (message) {
    case LB_SETCURSEL:
    case LB_SETCARETINDEX:
    case LB_SETTOPINDEX:
    case LB_SELECTSTRING:
    case LB_INSERTSTRING:
    case LB_ADDSTRING:
    case LB_DELETESTRING:
    case LB_RESETCONTENT:
    case LB_SETITEMHEIGHT:
    case WM_SETFONT:
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
        return true;
    default:
        return false;
    }
}

// Messages at which it may draw in between its notifications.
bool MayDraw(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_TIMER:
        return true;
    default:
        return false;
    }
}

} // namespace

CQVComboLBox::CQVComboLBox() = default;

CQVComboLBox::~CQVComboLBox() {
    if (m_pCombo)
        m_pCombo->m_pParts->ForgetList();
    if (m_hWnd)
        UnsubclassWindow(); // the list belongs to its combo box
}

void CQVComboLBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    AttachSkinAndFont(this);
    QV_ReplaceWnd(m_hWnd);
}

void CQVComboLBox::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    if (m_pCombo) {
        m_pCombo->DrawEntry(dc, item, rect, itemState);
        return;
    }
    FillComboRow(dc, rect, itemState);
    CString text;
    if (const int length = GetTextLen(item); length > 0) {
        GetText(item, text.GetBuffer(length + 1));
        text.ReleaseBuffer();
    }
    DrawComboText(dc, m_hWnd, text, rect, itemState);
}

void CQVComboLBox::Paint(CDC* dc, const CRect& client) {
    dc->FillSolidRect(client, QV_GetSysColor(QVCLR_COMBO_LIST));
    const int count = GetCount();
    const int current = GetCurSel();
    const UINT disabled = IsWindowEnabled() ? 0 : ODS_DISABLED;
    for (int item = GetTopIndex(); item >= 0 && item < count; ++item) {
        CRect row;
        if (GetItemRect(item, row) == LB_ERR || row.top >= client.bottom)
            break;
        const DcState saved(*dc);
        DrawEntry(dc, item, row, disabled | (item == current ? ODS_SELECTED | ODS_FOCUS : 0));
    }
}

// A drop-down list selects the row under the mouse; doing it here keeps the system from drawing it in its
// colours.
BOOL CQVComboLBox::SelectUnderMouse(WPARAM keys, LPARAM point) {
    if (!m_pCombo || (keys & MK_LBUTTON) || !(GetStyle() & WS_VISIBLE) ||
        (WindowStyle(*m_pCombo) & (CBS_SIMPLE | CBS_DROPDOWN)) == CBS_SIMPLE)
        return FALSE;
    const int item = ListItemAt(*this, CPoint(point));
    if (item < 0)
        return FALSE;
    if (item != GetCurSel()) {
        SetCurSel(item);
        UpdateWindow();
    }
    return TRUE;
}

LRESULT CQVComboLBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
    case WM_PRINTCLIENT:
        PaintBuffered(m_hWnd, wParam, [this](CDC* dc, const CRect& client) { Paint(dc, client); });
        return 0;
    case WM_NCPAINT: {
        const LRESULT result = CListBox::WindowProc(message, wParam, lParam);
        PaintBorder(m_hWnd, QVCLR_LIST_FRAME, QVCLR_LIST_FRAME);
        return result;
    }
    case WM_SETFONT:
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
        break;
    case WM_MOUSEMOVE:
        if (SelectUnderMouse(wParam, lParam))
            return 0;
        break;
    default:
        break;
    }
    if (DrawsAtOnce(message)) {
        NativePaintPause pause(m_hWnd);
        return CListBox::WindowProc(message, wParam, lParam);
    }
    const LRESULT result = CListBox::WindowProc(message, wParam, lParam);
    if (m_hWnd && MayDraw(message))
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return result;
}

} // namespace _qv_commonctrl
