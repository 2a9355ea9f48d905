// ScrollPainter.h: the skin's picture of a scroll bar.
#pragma once

#include "ScrollOverlay.h"

namespace _qv_commonctrl {

// Paints a bar, or the corner between two, into `rect`; `wnd` gives the DPI.
void PaintScrollBar(HDC target, const CRect& rect, OverlayKind kind, const OverlayPicture& picture, HWND wnd);

} // namespace _qv_commonctrl
