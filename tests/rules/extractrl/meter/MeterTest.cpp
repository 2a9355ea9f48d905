#include "meter/QVMeterBallistics.h"
#include "meter/QVMeterRows.h"

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
    meter.Advance(1010 + kPeakHoldMs - 1);
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(1010 + kPeakHoldMs);
    EXPECT_EQ(meter.Peak(), 79);
    meter.Advance(1010 + kPeakHoldMs + 9 * kPeakFallMsPerPoint);
    EXPECT_EQ(meter.Peak(), 70);
    meter.Advance(1010 + kPeakHoldMs + 1000 * kPeakFallMsPerPoint);
    EXPECT_EQ(meter.Peak(), 50);
    EXPECT_TRUE(meter.IsAtRest());
}

TEST(MeterBallistics, ANewPeakIsHeldAnew) {
    QVMeterBallistics meter;
    meter.SetLevel(80, 0);
    meter.SetLevel(10, 10);
    meter.SetLevel(80, kPeakHoldMs - 1);
    meter.SetLevel(10, kPeakHoldMs);
    meter.Advance(2 * kPeakHoldMs - 1);
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(2 * kPeakHoldMs);
    EXPECT_EQ(meter.Peak(), 79);
}

TEST(MeterBallistics, ThePeakIsHeldFromTheDrop) {
    QVMeterBallistics meter;
    meter.SetLevel(80, 0); // and nothing is heard of it until it drops
    meter.SetLevel(20, 5000);
    EXPECT_EQ(meter.Peak(), 80);
    meter.SetLevel(10, 5000 + kPeakHoldMs - 1); // a further drop does not prolong it
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(5000 + kPeakHoldMs);
    EXPECT_EQ(meter.Peak(), 79);
    meter.SetLevel(80, 9000);
    for (uint64_t now = 9000; now < 12000; now += 40)
        meter.SetLevel(80, now);
    meter.SetLevel(0, 12000);
    meter.Advance(12000 + kPeakHoldMs - 1);
    EXPECT_EQ(meter.Peak(), 80);
    meter.Advance(12000 + kPeakHoldMs);
    EXPECT_EQ(meter.Peak(), 79);
}

TEST(MeterBallistics, AFullLevelKeepsItsClipMark) {
    QVMeterBallistics meter;
    meter.SetLevel(100, 0);
    EXPECT_TRUE(meter.IsAtRest()); // no clock has to run for it
    meter.Advance(10 * kClipHoldMs);
    EXPECT_TRUE(meter.IsClipped());
    meter.SetLevel(50, 10 * kClipHoldMs);
    EXPECT_FALSE(meter.IsAtRest());
    meter.Advance(11 * kClipHoldMs - 1);
    EXPECT_TRUE(meter.IsClipped());
    meter.Advance(11 * kClipHoldMs);
    EXPECT_FALSE(meter.IsClipped());
}

TEST(MeterBallistics, ClipMarkStaysAndGoesOut) {
    QVMeterBallistics meter;
    meter.SetLevel(99, 0);
    EXPECT_FALSE(meter.IsClipped());
    meter.SetLevel(100, 10);
    meter.SetLevel(0, 20);
    meter.Advance(20 + kClipHoldMs - 1);
    EXPECT_TRUE(meter.IsClipped());
    meter.Advance(20 + kClipHoldMs);
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

// Laid over the picture before, the runs must give the picture after, and touch no row that looks the same.
void ExpectChanges(const QVMeterPicture& before, const QVMeterPicture& after) {
    const QVMeterRuns runs = QV_ChangedRuns(before, after);
    int row = 0;
    for (const QVMeterRun& run : runs) {
        ASSERT_LT(run.from, run.to);
        for (; row < run.from; ++row)
            ASSERT_EQ(after.RowAt(row), before.RowAt(row)) << row;
        for (; row < run.to; ++row) {
            ASSERT_EQ(after.RowAt(row), run.state) << row;
            ASSERT_NE(before.RowAt(row), run.state) << row;
        }
    }
    for (; row < after.height; ++row)
        ASSERT_EQ(after.RowAt(row), before.RowAt(row)) << row;
    ASSERT_EQ(row, after.height);
}

TEST(MeterRows, ChangedRunsAreTheDifferencesAndNoMore) {
    uint64_t now = 0;
    unsigned seed = 12345;
    QVMeterBallistics meter;
    QVMeterPicture before = QV_GetMeterPicture(meter, kHeight, kMarks);
    for (int i = 0; i < 20000; ++i) {
        seed = seed * 1103515245u + 12345u;
        now += seed >> 16 & 63;
        meter.SetLevel(static_cast<int>(seed >> 8 & 0x7FFF) % 101, now);
        const QVMeterPicture after = QV_GetMeterPicture(meter, kHeight, kMarks);
        ASSERT_NO_FATAL_FAILURE(ExpectChanges(before, after)) << i;
        before = after;
    }
    EXPECT_TRUE(QV_ChangedRuns(before, before).IsEmpty());
}

// Pictures that no meter shows (marks below the bar, crossed or outside) are bounded as well.
TEST(MeterRows, ChangedRunsOfAnyTwoPictures) {
    unsigned seed = 99;
    const auto any = [&seed](int from, int to) {
        seed = seed * 1103515245u + 12345u;
        return from + static_cast<int>(seed >> 16) % (to - from);
    };
    const auto picture = [&any] {
        return QVMeterPicture{20, any(-3, 24), any(-3, 24), any(-3, 24), any(-3, 24)};
    };
    for (int i = 0; i < 20000; ++i)
        ASSERT_NO_FATAL_FAILURE(ExpectChanges(picture(), picture())) << i;
}

TEST(MeterRows, AnotherHeightIsAllRows) {
    QVMeterBallistics meter;
    meter.SetLevel(50, 0);
    const QVMeterRuns runs =
        QV_ChangedRuns(QV_GetMeterPicture(meter, 100, kMarks), QV_GetMeterPicture(meter, 120, kMarks));
    ASSERT_EQ(runs.end() - runs.begin(), 2);
    EXPECT_EQ(runs.begin()[0].from, 0);
    EXPECT_EQ(runs.begin()[0].to, 60);
    EXPECT_EQ(runs.begin()[1].from, 60);
    EXPECT_EQ(runs.begin()[1].to, 120);
    EXPECT_EQ(QV_GetMeterPicture(meter, -5, kMarks).height, 0);
}

TEST(MeterRows, RunsOfAPartStayInsideIt) {
    QVMeterBallistics meter;
    meter.SetLevel(100, 0);
    meter.SetLevel(50, 1);
    const QVMeterPicture picture = QV_GetMeterPicture(meter, kHeight, kMarks);
    for (int from = -5; from < kHeight + 5; from += 3) {
        for (int to = from - 3; to < kHeight + 5; to += 7) {
            int row = std::clamp(from, 0, kHeight);
            for (const QVMeterRun& run : QV_MeterRuns(picture, from, to)) {
                ASSERT_EQ(run.from, row);
                for (; row < run.to; ++row)
                    ASSERT_EQ(picture.RowAt(row), run.state);
            }
            ASSERT_EQ(row, std::max(std::clamp(from, 0, kHeight), std::min(to, kHeight)));
        }
    }
}

} // namespace
