// Mark.h: the box of a check box, the disc of a radio button.
#pragma once

#include "paint/PaintKit.h"

namespace _qv_commonctrl {

constexpr int kMarkBoxPx = 13; // side of a box at 96 DPI

enum class MarkShape { Check, Radio };

struct MarkLook {
    MarkShape shape;
    ControlState state;
    int check; // BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE
    bool focused;
};

void DrawMark(CDC* dc, const CRect& box, const MarkLook& look, UINT dpi);

} // namespace _qv_commonctrl
