#include "Pixels.h"

#include <algorithm>
#include <array>

namespace _qv_commonctrl {

namespace {

// What part of an old row or column goes into a new one: first index and weights (their sum is 1).
struct Cover {
    int first = 0;
    std::vector<double> weights;
};

std::vector<Cover> Covers(int from, int to) {
    std::vector<Cover> covers(static_cast<std::size_t>(to));
    const double step = static_cast<double>(from) / to;
    for (int i = 0; i < to; ++i) {
        const double begin = i * step;
        const double end = std::min<double>(from, begin + step);
        Cover& cover = covers[static_cast<std::size_t>(i)];
        cover.first = std::min(static_cast<int>(begin), from - 1);
        for (int k = cover.first; k < from && (k < end || cover.weights.empty()); ++k)
            cover.weights.push_back((std::min<double>(k + 1, end) - std::max<double>(k, begin)) /
                                    (end - begin));
    }
    return covers;
}

uint32_t Average(const Pixels& strip, int left, const Cover& across, const Cover& down) {
    std::array<double, 4> sum = {};
    for (std::size_t y = 0; y < down.weights.size(); ++y) {
        for (std::size_t x = 0; x < across.weights.size(); ++x) {
            const uint32_t pixel =
                strip.At(left + across.first + static_cast<int>(x), down.first + static_cast<int>(y));
            const double weight = down.weights[y] * across.weights[x];
            for (std::size_t c = 0; c < sum.size(); ++c)
                sum[c] += weight * ((pixel >> (8 * c)) & 0xFF);
        }
    }
    uint32_t pixel = 0;
    for (std::size_t c = 0; c < sum.size(); ++c)
        pixel |= static_cast<uint32_t>(std::clamp(sum[c] + 0.5, 0.0, 255.0)) << (8 * c);
    return pixel;
}

} // namespace

Pixels ResizeFrames(const Pixels& strip, int frames, int cx, int cy) {
    Pixels result;
    if (frames < 1 || strip.width < frames || strip.height < 1 || cx < 1 || cy < 1 || cx > kMaxImageSidePx ||
        cy > kMaxImageSidePx || static_cast<int64_t>(cx) * frames * cy > kMaxImagePixels)
        return result;
    const int frameWidth = strip.width / frames;
    const std::vector<Cover> across = Covers(frameWidth, cx);
    const std::vector<Cover> down = Covers(strip.height, cy);
    result.width = cx * frames;
    result.height = cy;
    result.values.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(cy));
    for (const Cover& row : down) {
        for (int frame = 0; frame < frames; ++frame) {
            for (const Cover& column : across)
                result.values.push_back(Average(strip, frame * frameWidth, column, row));
        }
    }
    return result;
}

} // namespace _qv_commonctrl
