#include "RowPainter.h"

#include "controls/ControlSupport.h"
#include "skin/SkinPicture.h"

namespace _qv_commonctrl {

namespace {

constexpr int kCheckBoxPx = 13;
constexpr int kStateShift = 12; // where the number of the state image begins

static_assert(LVIS_SELECTED == TVIS_SELECTED && LVIS_CUT == TVIS_CUT &&
              LVIS_DROPHILITED == TVIS_DROPHILITED && LVIS_OVERLAYMASK == TVIS_OVERLAYMASK &&
              LVIS_STATEIMAGEMASK == TVIS_STATEIMAGEMASK);

bool HasFocusWithin(HWND control) {
    const HWND focus = GetFocus();
    return focus == control || IsChild(control, focus);
}

} // namespace

RowLook::RowLook(HWND wnd) : control(wnd) {
    if (!wnd)
        return;
    style = WindowStyle(wnd);
    dpi = QV_GetWindowDpi(wnd);
    font = WindowFontOf(wnd);
}

void RowPainter::SetState(UINT state) {
    m_state = state;
    const bool enabled = IsWindowEnabled(m_rows.control) != FALSE;
    int ground = m_rows.ground;
    int text = enabled ? m_rows.text : QVCLR_TEXT_DISABLED;
    if (enabled && IsSelected()) {
        if (HasFocusWithin(m_rows.control)) {
            ground = QVCLR_SELECTION;
            text = QVCLR_TEXT_SELECTED;
        } else if (m_rows.showsAlways) {
            ground = QVCLR_CTRL_HOT;
            text = QVCLR_TEXT_WINDOW;
        }
    }
    m_ground = QV_GetSysColor(ground);
    m_text = QV_GetSysColor(text);
}

COLORREF RowPainter::PlainText() const {
    return QV_GetSysColor(IsWindowEnabled(m_rows.control) ? m_rows.text
                                                          : static_cast<int>(QVCLR_TEXT_DISABLED));
}

void RowPainter::PaintGround(const CRect& part, bool hasKeyboard) {
    m_dc->FillSolidRect(part, m_ground);
    if (hasKeyboard && GetFocus() == m_rows.control)
        DrawFrameLines(m_dc, part, QV_GetSysColor(QVCLR_ACCENT), 1);
}

CSize RowPainter::IconSize() const {
    int width = 0;
    int height = 0;
    const bool known = m_rows.images && ImageList_GetIconSize(m_rows.images, &width, &height);
    return known ? CSize(width, height) : CSize();
}

// A picture is dimmed when what it stands for is cut or hidden.
void RowPainter::PaintIcon(int image, CPoint place) {
    DrawImage(m_rows.images, image, place,
              (m_state & LVIS_CUT ? ILD_BLEND50 : 0) | (m_state & LVIS_OVERLAYMASK));
}

int RowPainter::PaintStateImage(int right, const CRect& row) {
    const int number = static_cast<int>((m_state & LVIS_STATEIMAGEMASK) >> kStateShift);
    int width = 0;
    int height = 0;
    if (!m_rows.stateImages || number == 0 || !ImageList_GetIconSize(m_rows.stateImages, &width, &height))
        return right;
    const int left = right - width;
    if (m_rows.checkBoxes) {
        const int side = Px(kCheckBoxPx);
        DrawCheckBox(CentredIn(CRect(left, row.top, right, row.bottom), CSize(side, side)), number > 1);
    } else {
        DrawImage(m_rows.stateImages, number - m_rows.firstState,
                  CPoint(left, row.top + (row.Height() - height) / 2), 0);
    }
    return left;
}

void RowPainter::PaintText(const CString& text, const CRect& rect, UINT format, COLORREF color) {
    DrawTextIn(m_dc, text, rect, format | DT_NOPREFIX, m_rows.font, color);
}

void RowPainter::DrawImage(HIMAGELIST images, int index, CPoint place, UINT style) {
    if (images && index >= 0)
        ImageList_DrawEx(images, index, *m_dc, place.x, place.y, 0, 0, CLR_NONE, QV_GetSysColor(QVCLR_LIST),
                         ILD_TRANSPARENT | style);
}

void RowPainter::DrawCheckBox(const CRect& box, bool checked) {
    m_dc->FillSolidRect(box, QV_GetSysColor(QVCLR_LIST));
    DrawFrameLines(m_dc, box, QV_GetSysColor(checked ? QVCLR_ACCENT : QVCLR_CTRL_BORDER), 1);
    if (!checked)
        return;
    const SkinPicture mark(L"CommonCtrl\\Button\\check.png", QVIMAGE_STATES, m_rows.dpi);
    const CRect place = CentredIn(box, mark.Size());
    mark.Draw(m_dc, 0, place.left, place.top);
}

LRESULT ColorLabelEdit(HDC dc) {
    SetTextColor(dc, QV_GetSysColor(QVCLR_TEXT_WINDOW));
    SetBkColor(dc, QV_GetSysColor(QVCLR_LIST));
    return reinterpret_cast<LRESULT>(QV_GetSysBrush(QVBRUSH_LIST));
}

} // namespace _qv_commonctrl
