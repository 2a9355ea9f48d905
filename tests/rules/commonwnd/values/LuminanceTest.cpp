#include "values/IntegerText.h"
#include "values/LuminanceUnits.h"
#include "QVSafeColor.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

using namespace _qv_commonwnd;

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
const double kNaN = std::nan("");

} // namespace

// To the last bit: the formulas stand here as they are meant.
TEST(Luminance, PercentToCodeIsExact) {
    for (int tenth = -73; tenth <= 1090; ++tenth) {
        const double percent = tenth / 10.0;
        const double code = 16 + percent * 219 / 100;
        EXPECT_EQ(code < 0 ? 0.0 : code > 255 ? 255.0 : code, PercentToCode(percent)) << percent;
    }
    EXPECT_EQ(16.0, PercentToCode(0.0));
    EXPECT_EQ(235.0, PercentToCode(100.0));
    EXPECT_EQ(0.0, PercentToCode(-1000.0));
    EXPECT_EQ(255.0, PercentToCode(1000.0));
    EXPECT_EQ(0.0, PercentToCode(-kInfinite));
    EXPECT_EQ(255.0, PercentToCode(kInfinite));
    EXPECT_EQ(0.0, PercentToCode(kNaN));
}

TEST(Luminance, CodeToPercentIsExact) {
    for (int code = 1; code <= 254; ++code)
        EXPECT_EQ((code - 16.0) * 100 / 219, CodeToPercent(code)) << code;
    EXPECT_EQ(0.0, CodeToPercent(16.0));
    EXPECT_EQ(100.0, CodeToPercent(235.0));
    EXPECT_EQ(-7.3, CodeToPercent(0.0));
    EXPECT_EQ(109.0, CodeToPercent(255.0));
    EXPECT_EQ(-7.3, CodeToPercent(-kInfinite));
    EXPECT_EQ(109.0, CodeToPercent(kInfinite));
    EXPECT_EQ(-7.3, CodeToPercent(kNaN));
}

TEST(Luminance, EveryCodeComesBackRounded) {
    for (int code = 1; code <= 254; ++code)
        EXPECT_EQ(code, RoundCode(PercentToCode(CodeToPercent(code))));
}

TEST(Luminance, HalvesAreRoundedAwayFromZero) {
    const struct {
        double code;
        int rounded;
    } cases[] = {{0.0, 0},
                 {0.49, 0},
                 {0.5, 1},
                 {15.5, 16},
                 {254.5, 255},
                 {-0.49, 0},
                 {-0.5, -1},
                 {-1.5, -2},
                 {kNaN, 0},
                 {kInfinite, INT_MAX},
                 {1e300, INT_MAX},
                 {-1e300, -INT_MAX},
                 {-kInfinite, -INT_MAX}};
    for (const auto& c : cases)
        EXPECT_EQ(c.rounded, RoundCode(c.code)) << c.code;
}

TEST(SafeColor, DefaultsAndReset) {
    tag_QVSafeColor color;
    const auto expectDefaults = [&] {
        EXPECT_EQ(16.0, color.dLumLow);
        EXPECT_EQ(235.0, color.dLumHigh);
        EXPECT_EQ(100.0, color.dChromaHigh);
        EXPECT_EQ(2, color.nAction);
        EXPECT_EQ(0, color.nLumUnit);
        EXPECT_EQ(1, color.nChromaUnit);
    };
    expectDefaults();
    EXPECT_EQ(0, color.nFlag);
    color.dLumLow = color.dLumHigh = color.dChromaHigh = -1.0;
    color.nAction = color.nLumUnit = color.nChromaUnit = color.nFlag = 9;
    color.Reset();
    expectDefaults();
    EXPECT_EQ(9, color.nFlag); // not the flag
}

// TRUE means: at its default.
TEST(SafeColor, IsDirtyIsTrueAtTheDefault) {
    tag_QVSafeColor color;
    EXPECT_TRUE(color.IsDirty(0));
    EXPECT_TRUE(color.IsDirty(1));
    color.dLumLow = std::nextafter(16.0, 17.0);
    EXPECT_FALSE(color.IsDirty(0));
    EXPECT_TRUE(color.IsDirty(1)); // whatever the luminance
    color.dLumLow = 16.0;
    color.dLumHigh = 234.0;
    EXPECT_FALSE(color.IsDirty(0));
    color.dChromaHigh = std::nextafter(100.0, 0.0);
    for (const int which : {1, -1, 2, INT_MIN})
        EXPECT_FALSE(color.IsDirty(which));
}

TEST(SafeColor, ResetDirtyTouchesItsGroupOnly) {
    tag_QVSafeColor color;
    color.dLumLow = color.dLumHigh = color.dChromaHigh = 1.0;
    color.nAction = 0;
    color.ResetDirty(0);
    EXPECT_TRUE(color.IsDirty(0));
    EXPECT_EQ(1.0, color.dChromaHigh);
    color.dLumLow = 3.0;
    color.ResetDirty(77);
    EXPECT_EQ(100.0, color.dChromaHigh);
    EXPECT_EQ(3.0, color.dLumLow);
    EXPECT_EQ(0, color.nAction);
}

TEST(SafeColor, ComparisonLeavesTheFlagOut) {
    tag_QVSafeColor one;
    tag_QVSafeColor other;
    one.nFlag = 5;
    EXPECT_TRUE(one == other);
    other.nChromaUnit = 0;
    EXPECT_FALSE(one == other);
    other = one;
    EXPECT_EQ(5, other.nFlag); // assignment takes it along
    EXPECT_TRUE(one == other);
    double tag_QVSafeColor::*const values[] = {&tag_QVSafeColor::dLumLow, &tag_QVSafeColor::dLumHigh,
                                               &tag_QVSafeColor::dChromaHigh};
    for (const auto value : values) {
        tag_QVSafeColor changed = one;
        changed.*value += 1e-9;
        EXPECT_FALSE(one == changed);
    }
    int tag_QVSafeColor::*const numbers[] = {&tag_QVSafeColor::nAction, &tag_QVSafeColor::nLumUnit};
    for (const auto number : numbers) {
        tag_QVSafeColor changed = one;
        ++(changed.*number);
        EXPECT_FALSE(one == changed);
    }
}

TEST(IntegerText, LeadingDigits) {
    const struct {
        const wchar_t* text;
        long long value;
    } cases[] = {{nullptr, 0},
                 {L"", 0},
                 {L"12abc", 12},
                 {L"abc12", 0},
                 {L"  7", 7},
                 {L"-1", -1},
                 {L"--1", 0},
                 {L"1.9", 1},
                 {L"0x10", 0},
                 {L"007", 7},
                 {L"9223372036854775807", LLONG_MAX},
                 {L"9223372036854775808", LLONG_MAX},
                 {L"-9223372036854775808", LLONG_MIN},
                 {L"-99999999999999999999", LLONG_MIN}};
    for (const auto& c : cases)
        EXPECT_EQ(c.value, LeadingInteger(c.text));
}

TEST(Luminance, AShownPercentageLeavesItsCodeAlone) {
    for (int whole = 0; whole <= 255; ++whole) {
        double code = whole;
        double percent = CodeToPercent(code);
        TakeLuminance(percent, true, code, percent);
        EXPECT_EQ(whole, code);
        EXPECT_EQ(CodeToPercent(whole), percent);
    }
    double code = 16.0;
    double percent = 0.0;
    TakeLuminance(50.0, true, code, percent);
    EXPECT_EQ(125.5, code);
    code = -500.0; // no code: what is shown for it is taken
    TakeLuminance(kLowestPercent, true, code, percent);
    EXPECT_EQ(PercentToCode(kLowestPercent), code);
    TakeLuminance(50.0, true, code, percent);
    EXPECT_EQ(50.0, percent);
    TakeLuminance(235.0, false, code, percent);
    EXPECT_EQ(235.0, code);
    EXPECT_EQ(100.0, percent);
}

TEST(IntegerText, ThirtyTwoBitsAreABound) {
    EXPECT_EQ(12, LeadingInt32(L"12px"));
    EXPECT_EQ(INT_MAX, LeadingInt32(L"2147483648"));
    EXPECT_EQ(INT_MAX, LeadingInt32(L"4294967295"));
    EXPECT_EQ(INT_MIN, LeadingInt32(L"-99999999999999999999"));
    EXPECT_EQ(0, LeadingInt32(nullptr));
}
