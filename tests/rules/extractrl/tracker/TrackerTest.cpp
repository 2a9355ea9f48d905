#include "tracker/QVTrackerGeometry.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>

namespace {

using namespace _qv_extractrl;

TEST(TrackerView, LetterboxesTheRange) {
    const QVTrackerView wide = QV_GetTrackerView(CRect(0, 0, 1920, 1080), CRect(0, 0, 200, 200), 4);
    EXPECT_EQ(wide.rcView, CRect(4, 46, 196, 154));
    const QVTrackerView tall = QV_GetTrackerView(CRect(0, 0, 100, 200), CRect(0, 0, 300, 200), 0);
    EXPECT_EQ(tall.rcView, CRect(100, 0, 200, 200));
}

TEST(TrackerView, NothingToShow) {
    const CRect client(0, 0, 200, 100);
    for (const CRect& range : {CRect(0, 0, 0, 0), CRect(0, 0, 0, 5), CRect(5, 5, 1, 1)}) {
        const QVTrackerView view = QV_GetTrackerView(range, client, 4);
        EXPECT_TRUE(view.IsEmpty());
        EXPECT_EQ(view.ToClient(CRect(0, 0, 5, 5)), CRect(0, 0, 0, 0));
        EXPECT_EQ(view.ToRangeWidth(50), 0);
        EXPECT_EQ(view.ToRangeHeight(50), 0);
    }
    EXPECT_TRUE(QV_GetTrackerView(CRect(0, 0, 10, 10), CRect(0, 0, 8, 8), 4).IsEmpty());
}

TEST(TrackerView, HugeAndFlatRanges) {
    const CRect client(0, 0, 200, 100);
    const QVTrackerView flat = QV_GetTrackerView(CRect(0, 0, INT_MAX, 1), client, 0);
    EXPECT_EQ(flat.rcView.Height(), 1);
    EXPECT_EQ(flat.rcView.Width(), 200);
    const QVTrackerView whole = QV_GetTrackerView(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), client, 0);
    EXPECT_EQ(whole.ToClient(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX)), whole.rcView);
    EXPECT_EQ(whole.ToRangeWidth(-whole.rcView.Width()), -(LONGLONG{INT_MAX} - INT_MIN));
}

TEST(TrackerView, ThereAndBack) {
    const QVTrackerView view = QV_GetTrackerView(CRect(0, 0, 100, 50), CRect(0, 0, 410, 300), 5);
    for (int x = 0; x <= 100; ++x) {
        const CRect client = view.ToClient(CRect(x, x / 2, x, x / 2));
        EXPECT_EQ(view.ToRangeWidth(client.left - view.rcView.left), x);
        EXPECT_EQ(view.ToRangeHeight(client.top - view.rcView.top), x / 2);
    }
}

TEST(TrackerKeepInRange, MovesAsLittleAsNeeded) {
    const CRect range(0, 0, 720, 576);
    const struct {
        CRect given, kept;
    } rows[] = {
        {{10, 20, 110, 70}, {10, 20, 110, 70}},
        {{-5, -5, 95, 45}, {0, 0, 100, 50}},
        {{700, 570, 800, 620}, {620, 526, 720, 576}},
        {{0, 0, 720, 576}, {0, 0, 720, 576}},
        {{10, 10, 730, 586}, {0, 0, 720, 576}},
        // larger than the range: must keep covering it
        {{-100, 50, 900, 100}, {-100, 50, 900, 100}},
        {{10, 0, 1010, 10}, {0, 0, 1000, 10}},
        {{-500, 0, 500, 10}, {-280, 0, 720, 10}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(QV_KeepInRange(row.given, range), row.kept);
    EXPECT_EQ(QV_KeepInRange(CRect(5, 5, 15, 15), CRect(0, 0, 0, 0)), CRect(0, 0, 10, 10));
}

TEST(TrackerMove, EdgesAreBounded) {
    const CRect distant = QV_MoveRectTo(CRect(0, 0, 100, 100), INT_MAX - 10LL, 5'000'000'000LL);
    EXPECT_EQ(distant.left, INT_MAX - 10);
    EXPECT_EQ(distant.right, INT_MAX);
    EXPECT_EQ(distant.top, INT_MAX);
}

} // namespace
