#include "QVRowPaint.h"

#include "QVPaintKit.h"
#include "skin/QVSkinPicture.h"

namespace _qv_commonctrl {

RowSelection SelectionOf(HWND control, bool selected, bool showAlways) {
    if (!selected)
        return RowSelection::None;
    const HWND focus = GetFocus();
    if (focus == control || IsChild(control, focus))
        return RowSelection::Active;
    return showAlways ? RowSelection::Inactive : RowSelection::None;
}

RowColors ColorsOfRow(HWND control, RowSelection selection, int plainGround, int plainText) {
    if (!IsWindowEnabled(control))
        return {QV_GetSysColor(plainGround), QV_GetSysColor(QVCLR_TEXT_DISABLED)};
    switch (selection) {
    case RowSelection::Active:
        return {QV_GetSysColor(QVCLR_SELECTION), QV_GetSysColor(QVCLR_TEXT_SELECTED)};
    case RowSelection::Inactive:
        return {QV_GetSysColor(QVCLR_CTRL_HOT), QV_GetSysColor(QVCLR_TEXT_WINDOW)};
    default:
        return {QV_GetSysColor(plainGround), QV_GetSysColor(plainText)};
    }
}

void DrawRowFocus(CDC* dc, const CRect& rect) {
    DrawFrameLines(dc, rect, QV_GetSysColor(QVCLR_ACCENT), 1);
}

void DrawRowCheckBox(CDC* dc, const CRect& box, bool checked, UINT dpi) {
    dc->FillSolidRect(box, QV_GetSysColor(QVCLR_LIST));
    DrawFrameLines(dc, box, QV_GetSysColor(checked ? QVCLR_ACCENT : QVCLR_CTRL_BORDER), 1);
    if (!checked)
        return;
    const SkinPicture mark(L"CommonCtrl\\Button\\check.png", QVIMAGE_STATES, dpi);
    const CSize size = mark.Size();
    mark.Draw(dc, 0, box.left + (box.Width() - size.cx) / 2, box.top + (box.Height() - size.cy) / 2);
}

void DrawRowIcon(CDC* dc, HIMAGELIST images, int index, CPoint place, bool dimmed, UINT overlay) {
    if (!images || index < 0)
        return;
    const UINT style = ILD_TRANSPARENT | (dimmed ? ILD_BLEND50 : 0) | overlay;
    ImageList_DrawEx(images, index, *dc, place.x, place.y, 0, 0, CLR_NONE, QV_GetSysColor(QVCLR_LIST), style);
}

LRESULT ColorLabelEdit(HDC dc) {
    SetTextColor(dc, QV_GetSysColor(QVCLR_TEXT_WINDOW));
    SetBkColor(dc, QV_GetSysColor(QVCLR_LIST));
    return reinterpret_cast<LRESULT>(QV_GetSysBrush(QVBRUSH_LIST));
}

} // namespace _qv_commonctrl
