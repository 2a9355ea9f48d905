#include "QVTimecode.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>

namespace {

using namespace _qv_extractrl;
using _qv_commonctrl::TimecodeFrameRate;

struct RateRow {
    const char* name;
    TimecodeFrameRate rate;
    int labelsPerSecond;
    int droppedPerMinute;
};

const RateRow kRates[] = {
    {"23.976", {23.976}, 24, 0},
    {"23.976 asked for drop-frame", {23.976, 1}, 24, 0},
    {"24", {24.0}, 24, 0},
    {"25", {25.0}, 25, 0},
    {"25 asked for drop-frame", {25.0, 1}, 25, 0},
    {"29.97 non-drop", {29.97}, 30, 0},
    {"29.97 drop", {29.97, 1}, 30, 2},
    {"30000/1001 drop", {30000.0 / 1001.0, 1}, 30, 2},
    {"30 asked for drop-frame", {30.0, 1}, 30, 0},
    {"47.952", {47.952}, 48, 0},
    {"48", {48.0}, 48, 0},
    {"50", {50.0}, 50, 0},
    {"59.94 non-drop", {59.94}, 60, 0},
    {"59.94 drop", {59.94, 1}, 60, 4},
    {"60", {60.0}, 60, 0},
    {"100", {100.0}, 100, 0},
    {"119.88 non-drop", {119.88}, 120, 0},
    {"119.88 drop", {119.88, 1}, 120, 8},
    {"120", {120.0}, 120, 0},
    {"50 in pairs", {50.0, 0, 2}, 25, 0},
    {"59.94 drop in pairs", {59.94, 1, 2}, 30, 2},
    {"119.88 drop in fours", {119.88, 1, 4}, 30, 2},
};

TEST(TimecodeCount, FollowsTheRate) {
    for (const RateRow& row : kRates) {
        SCOPED_TRACE(row.name);
        const QVTimecodeCount count = QV_GetTimecodeCount(row.rate);
        EXPECT_EQ(count.nLabelsPerSecond, row.labelsPerSecond);
        EXPECT_EQ(count.nDroppedPerMinute, row.droppedPerMinute);
        EXPECT_EQ(count.nLabelsPerDay,
                  86400LL * row.labelsPerSecond - row.droppedPerMinute * (24LL * 60 - 24 * 6));
        EXPECT_EQ(QV_IsDropFrame(row.rate), row.droppedPerMinute != 0);
    }
}

TEST(TimecodeCount, BoundsBadRates) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const double bad : {nan, inf, -inf, 0.0, -25.0, 0.4, 1000.5, 1e300})
        EXPECT_EQ(QV_GetTimecodeCount({bad, 1, 1}).nLabelsPerSecond, 25) << bad;
    for (const int bad : {0, -1, 3, 7, INT_MAX, INT_MIN})
        EXPECT_EQ(QV_GetTimecodeCount({25.0, 0, bad}).nFramesPerLabel, 1) << bad;
    EXPECT_EQ(QV_GetTimecodeCount({1.0}).nLabelsPerSecond, 1);
    EXPECT_EQ(QV_GetTimecodeCount({1000.0}).nLabelsPerSecond, 1000);
}

// An odometer that knows nothing of the arithmetic: it counts fields up and steps over the labels that
// drop-frame skips.
class Odometer {
  public:
    Odometer(int perSecond, int dropped, int perLabel)
        : m_perSecond(perSecond), m_dropped(dropped), m_perLabel(perLabel) {}

    void Step() {
        if (++label.nSubFrame < m_perLabel)
            return;
        label.nSubFrame = 0;
        if (++label.nFrames < m_perSecond)
            return;
        label.nFrames = 0;
        if (++label.nSeconds < 60)
            return;
        label.nSeconds = 0;
        if (++label.nMinutes == 60) {
            label.nMinutes = 0;
            ++label.nHours;
        }
        if (label.nMinutes % 10 != 0)
            label.nFrames = m_dropped;
    }

    QVTimecodeLabel label;

  private:
    int m_perSecond, m_dropped, m_perLabel;
};

class TimecodeDay : public testing::TestWithParam<RateRow> {};

TEST_P(TimecodeDay, EveryFrameHasItsLabelAndComesBack) {
    const RateRow& row = GetParam();
    const QVTimecodeCount count = QV_GetTimecodeCount(row.rate);
    const long long framesPerDay = count.nLabelsPerDay * count.nFramesPerLabel;
    Odometer odometer(count.nLabelsPerSecond, count.nDroppedPerMinute, count.nFramesPerLabel);
    for (long long frame = 0; frame < framesPerDay; ++frame, odometer.Step()) {
        const QVTimecodeLabel label = QV_FrameToLabel(frame, row.rate);
        if (!(label == odometer.label) || QV_LabelToFrame(label, row.rate) != frame)
            FAIL() << row.name << ": frame " << frame << " is " << label.nHours << ':' << label.nMinutes
                   << ':' << label.nSeconds << ':' << label.nFrames << '.' << label.nSubFrame
                   << " and comes back as " << QV_LabelToFrame(label, row.rate);
    }
    EXPECT_EQ(odometer.label.nHours, 24);
    QVTimecodeLabel midnight;
    midnight.nDays = 1;
    EXPECT_EQ(QV_FrameToLabel(framesPerDay, row.rate), midnight);
    EXPECT_EQ(QV_LabelToFrame(midnight, row.rate), framesPerDay);
}

INSTANTIATE_TEST_SUITE_P(Rates, TimecodeDay, testing::ValuesIn(kRates),
                         [](const auto& row) { return "Rate" + std::to_string(row.index); });

TEST(TimecodeLabel, WholeRangeOf64Bits) {
    const long long frames[] = {LLONG_MIN, LLONG_MIN + 1, LLONG_MIN / 3, -2073600000000LL, -2592000, -1, 0,
                                1,         2592000,       LLONG_MAX / 7, LLONG_MAX - 1,    LLONG_MAX};
    for (const RateRow& row : kRates) {
        for (const long long frame : frames)
            EXPECT_EQ(QV_LabelToFrame(QV_FrameToLabel(frame, row.rate), row.rate), frame) << row.name;
    }
}

TEST(TimecodeLabel, NegativeMirrorsPositive) {
    const TimecodeFrameRate rate(29.97, 1);
    const QVTimecodeLabel label = QV_FrameToLabel(-1800, rate);
    EXPECT_TRUE(label.bNegative);
    EXPECT_EQ(label.nMinutes, 1);
    EXPECT_EQ(label.nFrames, 2);
    EXPECT_EQ(QV_LabelToFrame(label, rate), -1800);
}

TEST(TimecodeLabel, BeyondTheRangeIsTheNearestFrame) {
    QVTimecodeLabel label;
    label.nDays = LLONG_MAX;
    EXPECT_EQ(QV_LabelToFrame(label, {25.0}), LLONG_MAX);
    label.bNegative = true;
    EXPECT_EQ(QV_LabelToFrame(label, {25.0}), LLONG_MIN);
}

struct CorrectRow {
    const char* name;
    TimecodeFrameRate rate;
    QVTimecodeLabel given;
    QVTimecodeLabel corrected;
};

const CorrectRow kCorrections[] = {
    {"exists", {25.0}, {false, 0, 1, 2, 3, 24}, {false, 0, 1, 2, 3, 24}},
    {"frames carry", {25.0}, {false, 0, 0, 0, 0, 75}, {false, 0, 0, 0, 3, 0}},
    {"all carry", {25.0}, {false, 0, 23, 59, 59, 25}, {false, 1, 0, 0, 0, 0}},
    {"hours carry", {25.0}, {false, 0, 49, 0, 0, 0}, {false, 2, 1, 0, 0, 0}},
    {"negative fields", {25.0}, {false, -3, -1, -1, -1, -1}, {}},
    {"skipped label 0", {29.97, 1}, {false, 0, 0, 1, 0, 0}, {false, 0, 0, 1, 0, 2}},
    {"skipped label 1", {29.97, 1}, {false, 0, 0, 59, 0, 1}, {false, 0, 0, 59, 0, 2}},
    {"tenth minute skips nothing", {29.97, 1}, {false, 0, 0, 10, 0, 0}, {false, 0, 0, 10, 0, 0}},
    {"non-drop skips nothing", {29.97, 0}, {false, 0, 0, 1, 0, 0}, {false, 0, 0, 1, 0, 0}},
    {"skipped at 59.94", {59.94, 1}, {false, 0, 0, 1, 0, 3}, {false, 0, 0, 1, 0, 4}},
    {"skipped at 119.88", {119.88, 1}, {false, 0, 0, 1, 0, 7}, {false, 0, 0, 1, 0, 8}},
    {"carried into a skipped one", {29.97, 1}, {false, 0, 0, 0, 60, 0}, {false, 0, 0, 1, 0, 2}},
    {"sub-frame carries", {50.0, 0, 2}, {false, 0, 0, 0, 0, 24, 2}, {false, 0, 0, 0, 1, 0, 0}},
    {"largest fields", {25.0}, {false, LLONG_MAX, INT_MAX, 0, 0, 0}, {false, LLONG_MAX, 7, 0, 0, 0}},
    {"negative zero", {25.0}, {true, 0, 0, 0, 0, 0}, {}},
};

TEST(TimecodeLabel, CorrectsLabelsThatDoNotExist) {
    for (const CorrectRow& row : kCorrections) {
        SCOPED_TRACE(row.name);
        QVTimecodeLabel label = row.given;
        EXPECT_EQ(QV_CorrectLabel(label, row.rate), !(row.given == row.corrected));
        EXPECT_EQ(label, row.corrected);
        // What was corrected exists: it comes back from its frame.
        if (label.nDays < 1000) {
            EXPECT_EQ(QV_FrameToLabel(QV_LabelToFrame(label, row.rate), row.rate), label);
        }
    }
}

struct StepRow {
    const char* name;
    TimecodeFrameRate rate;
    long long frame;
    QVTimecodeField field;
    int steps;
    long long stepped;
};

const StepRow kSteps[] = {
    {"frame", {25.0}, 49, QVTimecodeField::Frames, 1, 50},
    {"second", {25.0}, 49, QVTimecodeField::Seconds, 1, 74},
    {"minute", {25.0}, 0, QVTimecodeField::Minutes, 10, 15000},
    {"hour", {25.0}, 0, QVTimecodeField::Hours, -1, -90000},
    {"through zero", {25.0}, 10, QVTimecodeField::Seconds, -1, -15},
    {"back through zero", {25.0}, -15, QVTimecodeField::Seconds, 1, 10},
    {"through midnight", {25.0}, 2159999, QVTimecodeField::Seconds, 1, 2160024},
    {"onto a skipped label", {29.97, 1}, 1770, QVTimecodeField::Seconds, 1, 1800},
    {"drop-frame minute", {29.97, 1}, 1800, QVTimecodeField::Minutes, 1, 3598},
    {"drop-frame ten minutes", {29.97, 1}, 0, QVTimecodeField::Minutes, 10, 17982},
    {"pairs", {50.0, 0, 2}, 51, QVTimecodeField::Seconds, 1, 101},
    {"pairs count frames one by one", {50.0, 0, 2}, 51, QVTimecodeField::Frames, 1, 52},
    {"upper end", {25.0}, LLONG_MAX, QVTimecodeField::Frames, 5, LLONG_MAX},
    {"lower end", {25.0}, LLONG_MIN, QVTimecodeField::Hours, -1, LLONG_MIN},
    {"most steps", {25.0}, 0, QVTimecodeField::Hours, INT_MAX, 90000LL * INT_MAX},
};

TEST(TimecodeStep, ChangesAField) {
    for (const StepRow& row : kSteps)
        EXPECT_EQ(QV_StepTimecode(row.frame, row.rate, row.field, row.steps), row.stepped) << row.name;
}

TEST(TimecodeStep, OneUpAndOneDownComeBackWhereNoLabelIsSkipped) {
    for (const RateRow& row : kRates) {
        // Through zero a drop-frame label may meet one that is skipped.
        const long long first = row.droppedPerMinute == 0 ? -200000 : 0;
        for (long long frame = first; frame < 200000; frame += 37) {
            const long long up = QV_StepTimecode(frame, row.rate, QVTimecodeField::Hours, 1);
            ASSERT_EQ(QV_StepTimecode(up, row.rate, QVTimecodeField::Hours, -1), frame) << row.name;
        }
    }
}

} // namespace
