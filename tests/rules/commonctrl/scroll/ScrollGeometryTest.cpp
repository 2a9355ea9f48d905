#include "scroll/ScrollGeometry.h"

#include <gtest/gtest.h>

#include <climits>

using namespace _qv_commonctrl;

namespace {

constexpr ScrollBarShape kShape = {200, 17, 17, 47, true}; // room for the thumb: 17 to 183, 30 long

TEST(ScrollGeometry, ArrowsShareASmallBar) {
    EXPECT_EQ(17, ArrowLength(200, 17));
    EXPECT_EQ(10, ArrowLength(20, 17));
    EXPECT_EQ(0, ArrowLength(1, 17));
    EXPECT_EQ(0, ArrowLength(-5, 17));
}

TEST(ScrollGeometry, Parts) {
    struct {
        int at;
        ScrollPart part;
    } const kTable[] = {{-1, ScrollPart::None},          {0, ScrollPart::ArrowBack},
                        {16, ScrollPart::ArrowBack},     {17, ScrollPart::Thumb},
                        {46, ScrollPart::Thumb},         {47, ScrollPart::PageForward},
                        {182, ScrollPart::PageForward},  {183, ScrollPart::ArrowForward},
                        {199, ScrollPart::ArrowForward}, {200, ScrollPart::None}};
    for (const auto& row : kTable)
        EXPECT_EQ(row.part, HitScrollPart(kShape, row.at)) << row.at;
    ScrollBarShape moved = kShape;
    moved.thumbBegin = 60;
    moved.thumbEnd = 90;
    EXPECT_EQ(ScrollPart::PageBack, HitScrollPart(moved, 59));
    EXPECT_EQ(ScrollPart::Thumb, HitScrollPart(moved, 60));
}

TEST(ScrollGeometry, DisabledBarHasNoParts) {
    ScrollBarShape off = kShape;
    off.enabled = false;
    for (int at = 0; at < off.length; ++at)
        EXPECT_EQ(ScrollPart::None, HitScrollPart(off, at));
}

TEST(ScrollGeometry, BarWithoutThumbHasArrowsOnly) {
    ScrollBarShape bare = kShape;
    bare.thumbEnd = bare.thumbBegin;
    EXPECT_EQ(ScrollPart::ArrowBack, HitScrollPart(bare, 3));
    EXPECT_EQ(ScrollPart::None, HitScrollPart(bare, 100));
}

TEST(ScrollGeometry, ThumbFollowsThePosition) {
    const ScrollRange range = {0, 99, 10}; // positions 0 to 90
    EXPECT_EQ(17, WithThumbAt(kShape, range, 0).thumbBegin);
    EXPECT_EQ(17 + 68, WithThumbAt(kShape, range, 45).thumbBegin);
    EXPECT_EQ(153, WithThumbAt(kShape, range, 90).thumbBegin);
    EXPECT_EQ(183, WithThumbAt(kShape, range, 90).thumbEnd);
    EXPECT_EQ(153, WithThumbAt(kShape, range, 1000).thumbBegin); // outside: bounded
    EXPECT_EQ(17, WithThumbAt(kShape, range, -5).thumbBegin);
}

TEST(ScrollGeometry, ExtremeRangesDoNotOverflow) {
    const ScrollRange all = {INT_MIN, INT_MAX, 0};
    EXPECT_EQ(17, WithThumbAt(kShape, all, INT_MIN).thumbBegin);
    EXPECT_EQ(153, WithThumbAt(kShape, all, INT_MAX).thumbBegin);
    const ScrollRange hugePage = {0, INT_MAX, UINT_MAX};
    EXPECT_EQ(kShape, WithThumbAt(kShape, hugePage, 5));
}

TEST(ScrollGeometry, NothingToScrollLeavesTheThumb) {
    EXPECT_EQ(kShape, WithThumbAt(kShape, {0, 9, 10}, 5));
    EXPECT_EQ(kShape, WithThumbAt(kShape, {5, 5, 0}, 5));
    const ScrollBarShape tiny = {40, 17, 17, 23, true};
    EXPECT_EQ(tiny, WithThumbAt(tiny, {0, 99, 1}, 50)); // no room to move in
}

} // namespace
