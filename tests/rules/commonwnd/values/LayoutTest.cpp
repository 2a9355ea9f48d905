#include "messages/ProgressRules.h"
#include "values/StringDialogLayout.h"
#include "meters/VUFaceLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

using namespace _qv_commonwnd;

namespace {

constexpr UINT kDpi = 96;
constexpr int kMarksDb[] = {0, -3, -6, -12, -20, -30, -40, -60, -120};
constexpr int kMarks = 9;

} // namespace

TEST(ProgressRules, OneTickMovesByTheStep) {
    ProgressState state = {2.5f, 0.5f, -1, 100, 0};
    AdvanceProgress(state);
    EXPECT_EQ(3.0f, state.cur);
    EXPECT_EQ(0.5f, state.step);
}

TEST(ProgressRules, SlowDown) {
    const struct {
        ProgressState before;
        float step;
        int limit;
    } cases[] = {
        {{50, 1, -1, 100, 0}, 1.0f, 0},      // the threshold of 0 is no more than the rest of the way
        {{98, 2, -1, 100, 0}, 2.0f, 0},      // exactly at the end: the rest is 0
        {{99, 2, -1, 100, 0}, 2.0f / 3, 0},  // past it
        {{99, 2, 102, 100, 0}, 2.0f, 0},     // the announced position is still ahead
        {{99, 2, 101, 100, 0}, 2.0f / 3, 0}, // reached is not ahead
        {{50, 1, -1, 100, 9}, 1.0f / 3, 4},  // the threshold is halved towards zero
        {{150, 1, -1, 100, -3}, 1.0f, -3},   // beyond the rest of the way, which is -0.51, it does nothing
        {{150, 1, 40, 100, 1}, 1.0f / 3, 0},
    };
    for (auto c : cases) {
        AdvanceProgress(c.before);
        EXPECT_EQ(c.step, c.before.step);
        EXPECT_EQ(c.limit, c.before.slowLimit);
    }
}

TEST(ProgressRules, BarPositionIsCutAndBounded) {
    EXPECT_EQ(0, BarPosition(0.99f, 100));
    EXPECT_EQ(99, BarPosition(99.99f, 100));
    EXPECT_EQ(100, BarPosition(1e30f, 100));
    EXPECT_EQ(0, BarPosition(-1e30f, 100));
    EXPECT_EQ(0, BarPosition(std::nanf(""), 100));
    EXPECT_EQ(0, BarPosition(-INFINITY, 100));
    EXPECT_EQ(100, BarPosition(INFINITY, 100));
}

TEST(ProgressRules, Dots) {
    EXPECT_STREQ(L"a", ProgressMessage(L"a", 0));
    EXPECT_STREQ(L"a...", ProgressMessage(L"a", 3));
    EXPECT_STREQ(L"..", ProgressMessage(L"", 2));
    EXPECT_EQ((1 << 20) + 20, ProgressMessage(CString(L'x', 1 << 20), 20).GetLength())
        << "whole, however long";
    int dots = 0;
    for (int tick = 0; tick < 21; ++tick) {
        EXPECT_EQ(tick, dots);
        dots = NextDotCount(dots);
    }
    EXPECT_EQ(0, dots);
}

TEST(ProgressRules, Layout) {
    const ProgressLayout layout = LayOutProgress(CRect(0, 0, 378, 93), CRect(9, 10, 300, 30), kDpi);
    EXPECT_EQ(CRect(20, 10, 358, 30), layout.message);
    EXPECT_EQ(CRect(20, 34, 358, 54), layout.bar);
    EXPECT_EQ(CRect(288, 64, 358, 86), layout.cancel);
    const ProgressLayout twice = LayOutProgress(CRect(0, 0, 756, 186), CRect(18, 20, 600, 60), 2 * kDpi);
    EXPECT_EQ(CRect(40, 68, 716, 108), twice.bar);
}

TEST(StringLayout, Prompted) {
    const StringDialogLayout layout = LayOutPromptedString(CRect(0, 0, 301, 87), kDpi);
    EXPECT_EQ(CRect(6, 8, 66, 22), layout.label);
    EXPECT_EQ(CRect(6, 26, 295, 48), layout.edit);
    EXPECT_EQ(CRect(211, 58, 281, 80), layout.cancel);
    EXPECT_EQ(CRect(131, 58, 201, 80), layout.ok);
}

TEST(StringLayout, WindowButtonsMoveFromWhereTheyStand) {
    const CRect client(0, 0, 400, 300);
    CRect ok(55, 90, 110, 108);
    CRect cancel(120, 90, 180, 108);
    for (int i = 1; i <= 3; ++i) {
        const StringDialogLayout layout = LayOutStringWindow(client, ok, cancel, kDpi);
        EXPECT_EQ(CRect(10, 10, 390, 270), layout.edit);
        EXPECT_EQ(CRect(CPoint(55, 90 + 13 * i), CSize(70, 22)), layout.ok);
        EXPECT_EQ(CRect(CPoint(120, 90 + 13 * i), CSize(70, 22)), layout.cancel);
        ok = layout.ok;
        cancel = layout.cancel;
    }
}

TEST(VUFace, GroupsFromLeftToRight) {
    const CVUFaceLayout face(4, 10, 8, kDpi);
    int x = 40;
    const std::pair<const VUGroup*, int> groups[] = {{&face.input, 4}, {&face.track, 10}, {&face.output, 8}};
    for (const auto& [group, count] : groups) {
        EXPECT_EQ(count, group->count);
        EXPECT_EQ(22, group->pitch);
        EXPECT_EQ(CPoint(x - 30, 86), group->scale);
        EXPECT_EQ(CRect(CPoint(x, 86), CSize(15, 206)), group->firstMeter);
        EXPECT_EQ(CPoint(x + 3, 66), group->firstButton);
        EXPECT_EQ(CPoint(x, 8), group->title);
        EXPECT_EQ(CPoint(x + 3, 40), group->label);
        x += 22 * count + (group == &face.output ? 0 : 40);
    }
    EXPECT_EQ(x + 14, face.width);
}

TEST(VUFace, EmptyGroupsTakeNoRoom) {
    const CVUFaceLayout face(0, 3, 0, kDpi);
    EXPECT_EQ(0, face.input.count);
    EXPECT_EQ(0, face.output.count);
    EXPECT_EQ(40, face.track.firstMeter.left);
    EXPECT_EQ(40 + 66 + 40 + 14, face.width);
    EXPECT_EQ(54, CVUFaceLayout(0, 0, 0, kDpi).width);
}

TEST(VUFace, PossibleFaces) {
    EXPECT_TRUE(IsFacePossible(4, 95, 8));
    EXPECT_TRUE(IsFacePossible(0, 0, 0));
    EXPECT_FALSE(IsFacePossible(5, 95, 8));
    EXPECT_FALSE(IsFacePossible(4, 96, 8));
    EXPECT_FALSE(IsFacePossible(4, 95, 9));
    EXPECT_FALSE(IsFacePossible(-1, 1, 1));
    EXPECT_FALSE(IsFacePossible(LONG_MAX, LONG_MIN, 1));
}

TEST(VUFace, Panel) {
    EXPECT_EQ(CRect(10, 36, 10 + 22 * 8 + 35, 36 + 300 - 46), VUPanel(10, 8, 300, kDpi));
    EXPECT_EQ(CRect(20, 72, 20 + 44 * 8 + 70, 72 + 600 - 92), VUPanel(20, 8, 600, 2 * kDpi));
}

// A figure is at most kFigurePx of its font's pixels high. The scale is as long as the window's height leaves
// it.
TEST(VUFace, TheFiguresOfAllMarksHaveRoomAtEveryHeight) {
    constexpr int kFigurePx = 12;
    constexpr int kScaleTopPx = 86;
    constexpr int kShortestScalePx = 162; // in the lowest window, with the skin's frame round the face
    for (const int dpi : {96, 144, 192}) {
        const auto px = [dpi](int value) { return value * dpi / 96; };
        const int top = px(kScaleTopPx);
        for (int length = px(kShortestScalePx); length <= px(700); ++length) {
            for (int i = 1; i < kMarks; ++i) {
                const int above = VUMarkY(kMarksDb[i - 1], top, top + length);
                ASSERT_GT(VUMarkY(kMarksDb[i], top, top + length) - above, px(kFigurePx))
                    << kMarksDb[i] << " dB, " << length << " px, " << dpi << " DPI";
            }
        }
    }
    EXPECT_EQ(86, VUMarkY(0, 86, 292));
    EXPECT_EQ(292, VUMarkY(-120, 86, 292));
}
