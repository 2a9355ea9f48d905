// Pixels.h: arithmetic on 32-bit pixels, without a window or a device.
#pragma once

#include <cstdint>
#include <vector>

namespace _qv_commonctrl {

// Pixels 0xAARRGGBB with premultiplied alpha, top row first.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> values;

    bool IsEmpty() const { return values.empty(); }
    uint32_t At(int x, int y) const {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

// Cuts a strip into `frames` parts of equal width, gives each the size cx x cy by averaging over the area
// that each new pixel covers, and puts them side by side again: the frames never bleed into each other. Empty
// for a size below 1 or beyond kMaxImageSidePx.
Pixels ResizeFrames(const Pixels& strip, int frames, int cx, int cy);

constexpr int kMaxImageSidePx = 8192;
constexpr int64_t kMaxImagePixels = 16 << 20;

} // namespace _qv_commonctrl
