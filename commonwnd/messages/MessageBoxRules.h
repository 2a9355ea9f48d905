// How large the message box becomes for its question and where its parts lie then; plain values, no window.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

// What is added to the measured question, in pixels at 96 DPI: 8 at the left and right, 8 above, and 78
// below, where the tick box and the buttons stand.
inline constexpr int kQuestionSidesPx = 8 + 8;
inline constexpr int kQuestionTopAndBottomPx = 8 + 78;

// The box's window size: the question with its margins, but not smaller than `window` (what the template
// gave) and not larger than `workArea`. A box that is larger than the work area to begin with keeps its size.
// All in pixels.
CSize MessageBoxSize(CSize question, CSize window, CSize workArea, UINT dpi);

// Where the box's parts lie, in client pixels.
struct MessageBoxParts {
    CRect question;
    CRect noAsk;
    CRect yes; // the left-most button
};

// The parts once the box has its size. The template's places hold as long as the question fits there; a wider
// one is widened to both sides, and for a higher one the tick box moves down beside the buttons and leaves
// its row to the question. `noAskWidth` is what the tick box needs for its text; it is never made narrower
// than the template's.
MessageBoxParts FitQuestion(MessageBoxParts parts, CSize client, CSize question, int noAskWidth, UINT dpi);

} // namespace _qv_commonwnd
