// PaintKit.h: what all skinned controls paint with: lines, rounded boxes and discs, texts, grounds, colours
// of states.
#pragma once

#include "QVSkin.h"

namespace _qv_commonctrl {

// How a control looks at this moment; the numbers are the frames of state images.
enum class ControlState { Normal = 0, Hot = 1, Pressed = 2, Disabled = 3 };

// A box with rounded corners; the corners are blended with what stands behind it already.
struct BoxLook {
    COLORREF fill;
    COLORREF border;
    int borderPx = 1;
    int radiusPx = 3;
};
void DrawBox(CDC* dc, const CRect& rect, const BoxLook& look);

// A filled disc with a border, smoothed.
void DrawDisc(CDC* dc, const CRect& rect, const BoxLook& look);

// `widthPx` lines of one colour along the inside of the rectangle's edges.
void DrawFrameLines(CDC* dc, const CRect& rect, COLORREF color, int widthPx);

// Text with the given font on a transparent ground.
void DrawTextIn(CDC* dc, const CString& text, CRect rect, UINT format, HFONT font, COLORREF color);
CSize MeasureText(CDC* dc, const CString& text, HFONT font, UINT format, int widthPx = 0);

// The ground a child stands on, as its parent answers WM_CTLCOLORSTATIC or WM_CTLCOLORBTN; fills `rect`.
void FillParentGround(CDC* dc, HWND child, UINT ctlColorMessage, const CRect& rect);

// Text and font of a control. The font is never null.
CString WindowTextOf(HWND wnd);
HFONT WindowFontOf(HWND wnd);

// Fill of a push button, combo arrow or thumb in a state.
COLORREF ControlFill(ControlState state);

} // namespace _qv_commonctrl
