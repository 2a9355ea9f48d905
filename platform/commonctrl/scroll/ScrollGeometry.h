// ScrollGeometry.h: where the parts of a scroll bar lie. Plain functions over plain values.
#pragma once

namespace _qv_commonctrl {

enum class ScrollPart { None, ArrowBack, PageBack, Thumb, PageForward, ArrowForward };

// A bar along its own direction, pixels from its beginning (top or left).
struct ScrollBarShape {
    int length = 0;
    int arrow = 0;      // length of each arrow field
    int thumbBegin = 0; // begin == end: no thumb
    int thumbEnd = 0;
    bool enabled = false;

    bool HasThumb() const { return enabled && thumbEnd > thumbBegin; }
    bool operator==(const ScrollBarShape&) const = default;
};

// What a scroll bar scrolls, as SCROLLINFO has it.
struct ScrollRange {
    int least = 0;
    int most = 0;
    unsigned page = 0;
};

// Length of an arrow field: the system's, but never more than half of the bar.
int ArrowLength(int barLength, int systemArrow);

// Moves the thumb, keeping its length, to where it belongs for a position. Unchanged when there is nothing to
// scroll or no room.
ScrollBarShape WithThumbAt(const ScrollBarShape& shape, const ScrollRange& range, int position);

// The part under a place `at` pixels from the beginning; None outside the bar and on a disabled one.
ScrollPart HitScrollPart(const ScrollBarShape& shape, int at);

} // namespace _qv_commonctrl
