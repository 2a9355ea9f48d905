#include "ComboRow.h"

#include "paint/PaintKit.h"

namespace _qv_commonctrl {

namespace {

constexpr int kTextInsetPx = 5; // from the edge of a row or field to its text

} // namespace

bool IsSelectedRow(UINT itemState) {
    return (itemState & ODS_SELECTED) && !(itemState & ODS_COMBOBOXEDIT);
}

COLORREF ComboTextColor(UINT itemState) {
    return QV_GetSysColor(itemState & ODS_DISABLED   ? QVCLR_TEXT_DISABLED
                          : IsSelectedRow(itemState) ? QVCLR_TEXT_SELECTED
                                                     : QVCLR_TEXT_WINDOW);
}

void FillComboRow(CDC* dc, const CRect& rect, UINT itemState) {
    if (!(itemState & ODS_COMBOBOXEDIT))
        dc->FillSolidRect(rect,
                          QV_GetSysColor(IsSelectedRow(itemState) ? QVCLR_SELECTION : QVCLR_COMBO_LIST));
}

void DrawComboText(CDC* dc, HWND combo, const CString& text, CRect rect, UINT itemState) {
    rect.left += QV_ScalePx(combo, kTextInsetPx);
    DrawTextIn(dc, text, rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS,
               WindowFontOf(combo), ComboTextColor(itemState));
}

} // namespace _qv_commonctrl
