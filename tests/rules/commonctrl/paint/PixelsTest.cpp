#include "paint/Pixels.h"

#include <gtest/gtest.h>

using namespace _qv_commonctrl;

namespace {

Pixels make(int width, int height, std::vector<uint32_t> values) {
    return {width, height, std::move(values)};
}

TEST(ResizeFrames, SameSizeIsTheSame) {
    const Pixels strip = make(4, 1, {0xFF000000, 0x80402010, 0xFFFFFFFF, 0});
    EXPECT_EQ(strip.values, ResizeFrames(strip, 1, 4, 1).values);
    EXPECT_EQ(strip.values, ResizeFrames(strip, 4, 1, 1).values);
}

TEST(ResizeFrames, DoubleRepeatsPixels) {
    const Pixels big = ResizeFrames(make(2, 1, {0xFF102030, 0xFF405060}), 1, 4, 2);
    ASSERT_EQ(4, big.width);
    ASSERT_EQ(2, big.height);
    for (int y = 0; y < 2; ++y) {
        EXPECT_EQ(0xFF102030u, big.At(0, y));
        EXPECT_EQ(0xFF102030u, big.At(1, y));
        EXPECT_EQ(0xFF405060u, big.At(2, y));
        EXPECT_EQ(0xFF405060u, big.At(3, y));
    }
}

TEST(ResizeFrames, HalfAverages) {
    const Pixels small = ResizeFrames(make(2, 2, {0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000}), 1, 1, 1);
    ASSERT_EQ(1u, small.values.size());
    EXPECT_EQ(0xFF808080u, small.values[0]);
}

TEST(ResizeFrames, FramesDoNotBleed) {
    const Pixels strip = make(6, 1, {0xFFFF0000, 0xFFFF0000, 0xFFFF0000, 0xFF0000FF, 0xFF0000FF, 0xFF0000FF});
    const Pixels resized = ResizeFrames(strip, 2, 4, 1);
    ASSERT_EQ(8, resized.width);
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(0xFFFF0000u, resized.At(x, 0));
        EXPECT_EQ(0xFF0000FFu, resized.At(4 + x, 0));
    }
}

TEST(ResizeFrames, RemainderOfAStripIsLeftOut) {
    EXPECT_EQ(2, ResizeFrames(make(5, 1, {1, 1, 1, 1, 1}), 2, 1, 1).width);
}

TEST(ResizeFrames, RefusesWhatCannotBe) {
    const Pixels strip = make(4, 1, {1, 2, 3, 4});
    EXPECT_TRUE(ResizeFrames(strip, 0, 1, 1).IsEmpty());
    EXPECT_TRUE(ResizeFrames(strip, 5, 1, 1).IsEmpty());
    EXPECT_TRUE(ResizeFrames(strip, 4, 0, 1).IsEmpty());
    EXPECT_TRUE(ResizeFrames(strip, 4, 1, -1).IsEmpty());
    EXPECT_TRUE(ResizeFrames(strip, 4, kMaxImageSidePx + 1, 1).IsEmpty());
    EXPECT_TRUE(ResizeFrames(strip, 4, kMaxImageSidePx, kMaxImageSidePx).IsEmpty());
    EXPECT_TRUE(ResizeFrames(Pixels(), 1, 1, 1).IsEmpty());
}

} // namespace
