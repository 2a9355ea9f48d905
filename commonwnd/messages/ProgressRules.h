// How the progress window moves its bar and lays itself out; plain values, no window.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

struct ProgressState {
    float cur;     // position, units of the range
    float step;    // moved at each tick
    int next;      // announced next position, -1: none
    int range;     // upper end
    int slowLimit; // threshold of the slow-down rule
};

// One tick: moves by the step; then, unless the announced position is still ahead, divides the step by 3 and
// halves the threshold when the threshold exceeds the rest of the way (as a fraction of the range). With the
// threshold at 0 that happens only past the end of the range.
void AdvanceProgress(ProgressState& state);

// The position as the bar takes it: without its fraction, bounded to 0..range (NaN: 0).
int BarPosition(float cur, int range);

// The message with `dots` dots behind it.
CString ProgressMessage(const CString& text, int dots);

// The number of dots after `dots`: 0 to 20, then 0 again.
int NextDotCount(int dots);

struct ProgressLayout {
    CRect message;
    CRect bar;
    CRect cancel;
};

// The controls' places, client pixels, from the client rectangle and the message's present rectangle. The
// figures are pixels at 96 DPI and scaled to `dpi`.
ProgressLayout LayOutProgress(const CRect& client, const CRect& message, UINT dpi);

} // namespace _qv_commonwnd
