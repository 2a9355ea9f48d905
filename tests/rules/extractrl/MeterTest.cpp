#include "QVMeterBallistics.h"
#include "QVMeterRows.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace _qv_extractrl;

constexpr QVMeterMarks kMarks = {2, 4};
constexpr int kHeight = 206;

TEST(MeterBallistics, BoundsTheLevel) {
    QVMeterBallistics meter;
    for (const int level : {INT_MIN, -1, 0}) {
        meter.SetLevel(level, 0);
        EXPECT_EQ(meter.Level(), 0);
    }
    meter.SetLevel(INT_MAX, 0);
    EXPECT_EQ(meter.Level(), 100);
    EXPECT_TRUE(meter.IsClipped());
}

TEST(MeterBallistics, PeakHoldsThenFallsToTheLevel) {
    QVMeterBallistics meter;
    meter.SetLevel(80, 1000);
    meter.SetLevel(50, 1010);
    EXPECT_EQ(meter.Peak(), 80);
    EXPECT_FALSE(meter.IsAtRest());
    meter.Advance(1000 + kPeakHoldMs - 1);
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(1000 + kPeakHoldMs);
    EXPECT_EQ(meter.Peak(), 79);
    meter.Advance(1000 + kPeakHoldMs + 9 * kPeakFallMsPerPoint);
    EXPECT_EQ(meter.Peak(), 70);
    meter.Advance(1000 + kPeakHoldMs + 1000 * kPeakFallMsPerPoint);
    EXPECT_EQ(meter.Peak(), 50);
    EXPECT_TRUE(meter.IsAtRest());
}

TEST(MeterBallistics, ANewPeakIsHeldAnew) {
    QVMeterBallistics meter;
    meter.SetLevel(80, 0);
    meter.SetLevel(10, 10);
    meter.SetLevel(80, kPeakHoldMs - 1);
    meter.SetLevel(10, kPeakHoldMs);
    meter.Advance(2 * kPeakHoldMs - 2);
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(2 * kPeakHoldMs - 1);
    EXPECT_EQ(meter.Peak(), 79);
}

TEST(MeterBallistics, ClipMarkStaysAndGoesOut) {
    QVMeterBallistics meter;
    meter.SetLevel(99, 0);
    EXPECT_FALSE(meter.IsClipped());
    meter.SetLevel(100, 10);
    meter.SetLevel(0, 20);
    meter.Advance(10 + kClipHoldMs - 1);
    EXPECT_TRUE(meter.IsClipped());
    meter.Advance(10 + kClipHoldMs);
    EXPECT_FALSE(meter.IsClipped());
    meter.SetLevel(100, 10000);
    meter.SetLevel(30, 10001);
    meter.Reset();
    EXPECT_FALSE(meter.IsClipped());
    EXPECT_EQ(meter.Peak(), 30);
}

TEST(MeterRows, LevelsFillFromTheFoot) {
    EXPECT_EQ(QV_MeterRowOfLevel(0, kHeight), kHeight);
    EXPECT_EQ(QV_MeterRowOfLevel(100, kHeight), 0);
    EXPECT_EQ(QV_MeterRowOfLevel(50, kHeight), 103);
    EXPECT_EQ(QV_MeterRowOfLevel(50, 0), 0);
    for (int level = 1; level <= 100; ++level)
        EXPECT_LT(QV_MeterRowOfLevel(level, kHeight), QV_MeterRowOfLevel(level - 1, kHeight));
}

// The changed rows must be exactly those between the first and the last row that look different.
TEST(MeterRows, ChangedRowsCoverEveryDifferenceAndNoMore) {
    uint64_t now = 0;
    unsigned seed = 12345;
    QVMeterBallistics meter;
    QVMeterPicture before = QV_GetMeterPicture(meter, kHeight, kMarks);
    for (int i = 0; i < 20000; ++i) {
        seed = seed * 1103515245u + 12345u;
        now += seed >> 16 & 63;
        meter.SetLevel(static_cast<int>(seed >> 8 & 0x7FFF) % 101, now);
        const QVMeterPicture after = QV_GetMeterPicture(meter, kHeight, kMarks);
        const QVRowRange range = QV_ChangedRows(before, after);
        int first = kHeight, last = -1;
        for (int row = 0; row < kHeight; ++row) {
            if (before.RowAt(row) != after.RowAt(row)) {
                first = std::min(first, row);
                last = row;
            }
        }
        if (last < 0) {
            ASSERT_TRUE(range.IsEmpty() || range.to <= kMarks.clipHeight);
        } else {
            ASSERT_LE(range.from, first);
            ASSERT_GE(range.to, last + 1);
        }
        before = after;
    }
    EXPECT_TRUE(QV_ChangedRows(before, before).IsEmpty());
}

TEST(MeterRows, AnotherHeightIsAllRows) {
    QVMeterBallistics meter;
    const QVRowRange range =
        QV_ChangedRows(QV_GetMeterPicture(meter, 100, kMarks), QV_GetMeterPicture(meter, 120, kMarks));
    EXPECT_EQ(range.from, 0);
    EXPECT_EQ(range.to, 120);
    EXPECT_EQ(QV_GetMeterPicture(meter, -5, kMarks).height, 0);
}

} // namespace
