// QVRowPaint.h: what rows of lists and trees are painted with.
#pragma once

#include "QVSkin.h"

namespace _qv_commonctrl {

enum class RowSelection { None, Active, Inactive };

struct RowColors {
    COLORREF ground;
    COLORREF text;
};

// Colours of a row: `plainText` is the text colour index of a row that is not selected.
RowColors ColorsOfRow(HWND control, RowSelection selection, int plainGround, int plainText);

// Active while the control has the focus; else inactive when the control always shows its selection.
RowSelection SelectionOf(HWND control, bool selected, bool showAlways);

// The line round the item that has the keyboard.
void DrawRowFocus(CDC* dc, const CRect& rect);

// A check box: `checked` as in the state images of lists and trees.
void DrawRowCheckBox(CDC* dc, const CRect& box, bool checked, UINT dpi);

// A picture of an image list, dimmed when it is cut or hidden.
void DrawRowIcon(CDC* dc, HIMAGELIST images, int index, CPoint place, bool dimmed, UINT overlay);

// WM_CTLCOLOREDIT of a label that is being edited: sets the colours and returns the brush.
LRESULT ColorLabelEdit(HDC dc);

} // namespace _qv_commonctrl
