#include "ScrollGeometry.h"

#include <algorithm>
#include <cstdint>

namespace _qv_commonctrl {

int ArrowLength(int barLength, int systemArrow) {
    return std::max(0, std::min(systemArrow, barLength / 2));
}

ScrollBarShape WithThumbAt(const ScrollBarShape& shape, const ScrollRange& range, int position) {
    const int64_t page = range.page;
    const int64_t last =
        int64_t(range.most) - std::max<int64_t>(page - 1, 0); // highest position of the thumb
    const int64_t steps = last - range.least;
    const int thumb = shape.thumbEnd - shape.thumbBegin;
    const int64_t room = int64_t(shape.length) - 2 * int64_t(shape.arrow) - thumb;
    if (steps <= 0 || room <= 0 || thumb <= 0)
        return shape;
    const int64_t step = std::clamp<int64_t>(position, range.least, last) - range.least;
    ScrollBarShape moved = shape;
    moved.thumbBegin = shape.arrow + static_cast<int>((step * room + steps / 2) / steps);
    moved.thumbEnd = moved.thumbBegin + thumb;
    return moved;
}

ScrollPart HitScrollPart(const ScrollBarShape& shape, int at) {
    if (!shape.enabled || at < 0 || at >= shape.length)
        return ScrollPart::None;
    if (at < shape.arrow)
        return ScrollPart::ArrowBack;
    if (at >= shape.length - shape.arrow)
        return ScrollPart::ArrowForward;
    if (!shape.HasThumb())
        return ScrollPart::None;
    if (at < shape.thumbBegin)
        return ScrollPart::PageBack;
    return at < shape.thumbEnd ? ScrollPart::Thumb : ScrollPart::PageForward;
}

} // namespace _qv_commonctrl
