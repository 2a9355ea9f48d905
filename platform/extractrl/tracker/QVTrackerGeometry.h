// Where a rectangle tracker draws its range, how pixels become units of the range, and where a rectangle may
// go. Plain functions, any thread. "Range" means the co-ordinates that the host uses, "client" pixels of the
// control.
#pragma once

#include <atltypes.h>

namespace _qv_extractrl {

// The range's picture inside the control: as large as fits with the range's proportions, in the middle.
struct QVTrackerView {
    CRect rcRange; // the range in its own units
    CRect rcView;  // where it is drawn, client pixels

    bool IsEmpty() const;
    CRect ToClient(const CRect& rect) const;
    // How far a distance in pixels is, in units of the range, rounded.
    LONGLONG ToRangeWidth(int pixels) const;
    LONGLONG ToRangeHeight(int pixels) const;
};

// An empty or reversed range or client area gives an empty view.
QVTrackerView QV_GetTrackerView(const CRect& range, const CRect& client, int margin);

// The rectangle moved as little as needed to stay in the range. One that is wider (higher) than the range
// keeps covering it. Sums beyond 32 bits are bounded.
CRect QV_KeepInRange(const CRect& rect, const CRect& range);

// `rect` moved to a top-left corner, each edge bounded to 32 bits.
CRect QV_MoveRectTo(const CRect& rect, LONGLONG left, LONGLONG top);

} // namespace _qv_extractrl
