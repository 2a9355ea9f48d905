#include "QVTrackerGeometry.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace _qv_extractrl {

namespace {

LONGLONG Extent(LONG from, LONG to) {
    return LONGLONG{to} - from;
}

LONG Bounded(LONGLONG value) {
    return static_cast<LONG>(std::clamp<LONGLONG>(value, LONG_MIN, LONG_MAX));
}

// Maps `value` from the span that starts at `from` and is `fromSize` long to the span at `to`, `toSize` long.
LONG Map(LONG value, LONG from, LONGLONG fromSize, LONG to, LONGLONG toSize) {
    const double share = static_cast<double>(LONGLONG{value} - from) / static_cast<double>(fromSize);
    const double mapped = static_cast<double>(to) + share * static_cast<double>(toSize);
    return Bounded(
        std::llround(std::clamp(mapped, static_cast<double>(LONG_MIN), static_cast<double>(LONG_MAX))));
}

LONGLONG Distance(int pixels, LONGLONG rangeSize, LONGLONG viewSize) {
    if (viewSize <= 0)
        return 0;
    return std::llround(static_cast<double>(pixels) * static_cast<double>(rangeSize) /
                        static_cast<double>(viewSize));
}

// The start of a span of `size` kept inside (or, when it is longer, over) the range [lo, hi).
LONGLONG KeepSpan(LONGLONG start, LONGLONG size, LONGLONG lo, LONGLONG hi) {
    const LONGLONG last = hi - size;
    return last >= lo ? std::clamp(start, lo, last) : std::clamp(start, last, lo);
}

} // namespace

bool QVTrackerView::IsEmpty() const {
    return rcView.right <= rcView.left || rcView.bottom <= rcView.top;
}

CRect QVTrackerView::ToClient(const CRect& rect) const {
    if (IsEmpty())
        return CRect();
    const LONGLONG width = Extent(rcRange.left, rcRange.right);
    const LONGLONG height = Extent(rcRange.top, rcRange.bottom);
    const LONGLONG viewWidth = Extent(rcView.left, rcView.right);
    const LONGLONG viewHeight = Extent(rcView.top, rcView.bottom);
    return CRect(Map(rect.left, rcRange.left, width, rcView.left, viewWidth),
                 Map(rect.top, rcRange.top, height, rcView.top, viewHeight),
                 Map(rect.right, rcRange.left, width, rcView.left, viewWidth),
                 Map(rect.bottom, rcRange.top, height, rcView.top, viewHeight));
}

LONGLONG QVTrackerView::ToRangeWidth(int pixels) const {
    return Distance(pixels, Extent(rcRange.left, rcRange.right), Extent(rcView.left, rcView.right));
}

LONGLONG QVTrackerView::ToRangeHeight(int pixels) const {
    return Distance(pixels, Extent(rcRange.top, rcRange.bottom), Extent(rcView.top, rcView.bottom));
}

QVTrackerView QV_GetTrackerView(const CRect& range, const CRect& client, int margin) {
    QVTrackerView view;
    view.rcRange = range;
    const LONGLONG rangeWidth = Extent(range.left, range.right);
    const LONGLONG rangeHeight = Extent(range.top, range.bottom);
    const LONGLONG width = Extent(client.left, client.right) - 2LL * margin;
    const LONGLONG height = Extent(client.top, client.bottom) - 2LL * margin;
    if (rangeWidth <= 0 || rangeHeight <= 0 || width <= 0 || height <= 0)
        return view;
    const double scale = std::min(static_cast<double>(width) / static_cast<double>(rangeWidth),
                                  static_cast<double>(height) / static_cast<double>(rangeHeight));
    // A very flat or very narrow range still shows as a line.
    const LONGLONG viewWidth =
        std::clamp<LONGLONG>(std::llround(scale * static_cast<double>(rangeWidth)), 1, width);
    const LONGLONG viewHeight =
        std::clamp<LONGLONG>(std::llround(scale * static_cast<double>(rangeHeight)), 1, height);
    const LONGLONG left = client.left + margin + (width - viewWidth) / 2;
    const LONGLONG top = client.top + margin + (height - viewHeight) / 2;
    view.rcView = CRect(Bounded(left), Bounded(top), Bounded(left + viewWidth), Bounded(top + viewHeight));
    return view;
}

CRect QV_KeepInRange(const CRect& rect, const CRect& range) {
    const LONGLONG left = KeepSpan(rect.left, Extent(rect.left, rect.right), range.left, range.right);
    const LONGLONG top = KeepSpan(rect.top, Extent(rect.top, rect.bottom), range.top, range.bottom);
    return QV_MoveRectTo(rect, left, top);
}

CRect QV_MoveRectTo(const CRect& rect, LONGLONG left, LONGLONG top) {
    const LONGLONG width = Extent(rect.left, rect.right);
    const LONGLONG height = Extent(rect.top, rect.bottom);
    return CRect(Bounded(left), Bounded(top), Bounded(left + width), Bounded(top + height));
}

} // namespace _qv_extractrl
