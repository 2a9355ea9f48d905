#include "edits/QVNumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace _qv_extractrl;
using Limits = std::numeric_limits<double>;

TEST(NumberRule, FromAnyInput) {
    const QVNumberRule swapped = QV_MakeNumberRule(10, -5, 2);
    EXPECT_EQ(swapped.lo, -5);
    EXPECT_EQ(swapped.hi, 10);
    const QVNumberRule wild = QV_MakeNumberRule(-Limits::infinity(), Limits::quiet_NaN(), 99);
    EXPECT_EQ(wild.lo, -Limits::max());
    EXPECT_EQ(wild.hi, 0);
    EXPECT_EQ(wild.decimals, kMostDecimals);
    EXPECT_EQ(QV_MakeNumberRule(0, 1, -3).decimals, 0);
}

TEST(NumberText, Formats) {
    const struct {
        double value;
        int decimals;
        const wchar_t* text;
    } rows[] = {
        {0, 0, L"0"},
        {16, 0, L"16"},
        {235, 1, L"235.0"},
        {-7.3, 1, L"-7.3"},
        {-0.04, 1, L"0.0"},
        {-0.0, 2, L"0.00"},
        {0.06, 1, L"0.1"},
        {109, 1, L"109.0"},
        {1e15, 0, L"1000000000000000"},
        {Limits::quiet_NaN(), 1, L"0.0"},
        {Limits::infinity(), 0, L"0"},
        {1.5, -1, L"2"},
        {1, 12, L"1.000000000"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(QV_FormatNumber(row.value, row.decimals), row.text) << row.value;
    EXPECT_EQ(QV_FormatNumber(-Limits::max(), kMostDecimals).size(), 1u + 309u + 1u + kMostDecimals);
}

TEST(NumberText, Parses) {
    const struct {
        const wchar_t* text;
        double value;
    } good[] = {
        {L"0", 0},   {L"16", 16},    {L"-7.3", -7.3},
        {L"007", 7}, {L"1,5", 1.5},  {L".5", 0.5},
        {L"5.", 5},  {L"-.5", -0.5}, {L"1000000000000000000000", 1e21},
    };
    for (const auto& row : good) {
        double value = -1;
        EXPECT_TRUE(QV_ParseNumber(row.text, value)) << row.text;
        EXPECT_DOUBLE_EQ(value, row.value) << row.text;
    }
    for (const wchar_t* text : {L"", L"-", L".", L"-.", L"1e5", L"0x10", L"1.2.3", L"1,2.3", L"--1", L"1-",
                                L" 1", L"nan", L"inf", L"１２"}) {
        double value = -1;
        EXPECT_FALSE(QV_ParseNumber(text, value)) << text;
        EXPECT_EQ(value, -1);
    }
    double value = 0;
    EXPECT_TRUE(QV_ParseNumber(std::wstring(350, L'9'), value));
    EXPECT_EQ(value, Limits::max());
    EXPECT_TRUE(QV_ParseNumber(L"-" + std::wstring(350, L'9'), value));
    EXPECT_EQ(value, -Limits::max());
    EXPECT_FALSE(QV_ParseNumber(std::wstring(1 << 20, L'9'), value));
}

TEST(NumberText, TypingFilter) {
    const QVNumberRule codes = QV_MakeNumberRule(0, 255, 0);
    const QVNumberRule percent = QV_MakeNumberRule(-7.3, 109, 1);
    const struct {
        const wchar_t* text;
        bool codes, percent;
    } rows[] = {
        {L"", true, true},       {L"2", true, true},    {L"999", true, true},   {L"-", false, true},
        {L"-7", false, true},    {L"-7.", false, true}, {L"-7.3", false, true}, {L"-7.35", false, false},
        {L"1.", false, true},    {L"1.5", false, true}, {L"1,5", false, true},  {L".", false, true},
        {L"1.5.", false, false}, {L"a", false, false},  {L"1a", false, false},  {L"1-", false, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(QV_MayBecomeNumber(row.text, codes), row.codes) << row.text;
        EXPECT_EQ(QV_MayBecomeNumber(row.text, percent), row.percent) << row.text;
    }
}

TEST(NumberText, StepsOnTheGridAndInsideTheRange) {
    const QVNumberRule percent = QV_MakeNumberRule(-7.3, 109, 1);
    EXPECT_DOUBLE_EQ(QV_StepNumber(0.0, 0.1, 1, percent), 0.1);
    double value = 0.0;
    for (int i = 0; i < 100; ++i)
        value = QV_StepNumber(value, 0.1, 1, percent);
    EXPECT_EQ(value, 10.0);
    EXPECT_EQ(QV_StepNumber(108.95, 0.1, 10, percent), 109.0);
    EXPECT_EQ(QV_StepNumber(-7.25, 0.1, -10, percent), -7.3);
    EXPECT_EQ(QV_StepNumber(Limits::quiet_NaN(), 0.1, 0, percent), -7.3);
    EXPECT_EQ(QV_StepNumber(1e300, 1e308, 1000, QV_MakeNumberRule(-Limits::max(), Limits::max(), 9)),
              Limits::max());
}

TEST(NumberText, Bounds) {
    const QVNumberRule rule = QV_MakeNumberRule(0, 255, 0);
    EXPECT_EQ(QV_BoundNumber(-1, rule), 0);
    EXPECT_EQ(QV_BoundNumber(256, rule), 255);
    EXPECT_EQ(QV_BoundNumber(12.25, rule), 12.25);
    EXPECT_EQ(QV_BoundNumber(Limits::quiet_NaN(), rule), 0);
    EXPECT_EQ(QV_BoundNumber(Limits::infinity(), rule), 255);
}

} // namespace
