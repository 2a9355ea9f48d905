// ComboRow.h: ground and text of one entry of a combo box, in its list and in its closed field.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// `itemState` as in CQVComboBox::DrawEntry throughout.

// Whether the row is drawn as the selected one: the closed field never is.
bool IsSelectedRow(UINT itemState);

COLORREF ComboTextColor(UINT itemState);

// Fills a row of the list; the closed field has its ground already.
void FillComboRow(CDC* dc, const CRect& rect, UINT itemState);

// The entry's text, one inset from the left, in the font of the combo box.
void DrawComboText(CDC* dc, HWND combo, const CString& text, CRect rect, UINT itemState);

} // namespace _qv_commonctrl
