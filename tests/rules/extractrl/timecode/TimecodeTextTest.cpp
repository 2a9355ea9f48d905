#include "QVTimecode.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

using namespace _qv_extractrl;
using _qv_commonctrl::TimecodeFrameRate;

std::wstring Format(long long frame, const TimecodeFrameRate& rate) {
    wchar_t text[QV_TIMECODE_CHARS] = L"unset";
    const int length = QV_FormatTimecode(frame, rate, text, QV_TIMECODE_CHARS);
    EXPECT_EQ(static_cast<size_t>(length), std::wstring(text).size());
    return text;
}

TEST(TimecodeFormat, Tables) {
    const struct {
        long long frame;
        TimecodeFrameRate rate;
        const wchar_t* text;
    } rows[] = {
        {0, {25.0}, L"00:00:00:00"},          {50, {25.0}, L"00:00:02:00"},
        {-26, {25.0}, L"-00:00:01:01"},       {2159999, {25.0}, L"23:59:59:24"},
        {2160000, {25.0}, L"00:00:00:00"},    {1799, {29.97, 1}, L"00:00:59;29"},
        {1800, {29.97, 1}, L"00:01:00;02"},   {17982, {29.97, 1}, L"00:10:00;00"},
        {1800, {29.97}, L"00:01:00:00"},      {99, {100.0}, L"00:00:00:99"},
        {119, {120.0}, L"00:00:00:119"},      {7200, {119.88, 1}, L"00:01:00;008"},
        {51, {50.0, 0, 2}, L"00:00:01:00.1"}, {LLONG_MIN, {1000.0}, L"-07:12:55:808"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Format(row.frame, row.rate), row.text) << row.frame;
}

TEST(TimecodeFormat, BuffersTooSmall) {
    wchar_t text[16] = L"unset";
    EXPECT_EQ(QV_FormatTimecode(0, {25.0}, nullptr, 16), 0);
    EXPECT_EQ(QV_FormatTimecode(0, {25.0}, text, 0), 0);
    EXPECT_STREQ(text, L"unset");
    EXPECT_EQ(QV_FormatTimecode(0, {25.0}, text, 11), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(QV_FormatTimecode(0, {25.0}, text, 12), 11);
}

struct ParseRow {
    const wchar_t* text;
    TimecodeFrameRate rate;
    long long current;
    long long frame;
};

constexpr long long kDay25 = 2160000;

const ParseRow kLabels[] = {
    // digits fill from the right
    {L"7", {25.0}, 0, 7},
    {L"75", {25.0}, 0, 75},
    {L"124", {25.0}, 0, 49},
    {L"10000", {25.0}, 0, 1500},
    {L"01000000", {25.0}, 0, 90000},
    {L"1000119", {120.0}, 0, 100LL * 120 * 0 + 10LL * 60 * 120 + 119},
    {L"1234", {120.0}, 0, 120 + 234},
    // separators
    {L"00:00:02:00", {25.0}, 9, 50},
    {L"00.00.02.00", {25.0}, 9, 50},
    {L"00;00;02;00", {25.0}, 9, 50},
    {L"00 00 02 00", {25.0}, 9, 50},
    {L"0,0,2,0", {25.0}, 9, 50},
    {L"00:01:00;02", {29.97, 1}, 0, 1800},
    {L"1.0.0", {25.0}, 0, 1500},
    {L"1.", {25.0}, 0, 25},
    {L"1..", {25.0}, 0, 1500},
    {L".5", {25.0}, 0, 5},
    {L"1  2", {25.0}, 0, 27},
    {L"1 : 2", {25.0}, 0, 27},
    {L"  00:00:02:00  ", {25.0}, 9, 50},
    {L"100.0", {25.0}, 0, 2500},
    // corrected
    {L"00:01:00;00", {29.97, 1}, 0, 1800},
    {L"00:01:00;01", {29.97, 1}, 0, 1800},
    {L"10000", {29.97, 1}, 0, 1800},
    {L"99:99:99:99", {25.0}, 0, ((99 % 24 + 1) * 3600LL + 40 * 60 + 42) * 25 + 24},
    {L"24:00:00:00", {25.0}, 0, 0},
    {L"25:00:00:00", {25.0}, 0, 90000},
    // relative
    {L"+10", {25.0}, 100, 110},
    {L"-10", {25.0}, 100, 90},
    {L"-10", {25.0}, 5, -5},
    {L"+1.0", {25.0}, 100, 125},
    {L"+48.0.0.0", {25.0}, 0, 2 * kDay25},
    {L"- 1.", {25.0}, 0, -25},
    {L"+1", {25.0}, LLONG_MAX, LLONG_MAX},
    {L"-1", {25.0}, LLONG_MIN, LLONG_MIN},
    // absolute and negative
    {L"=10", {25.0}, 100, 10},
    {L"=-10", {25.0}, 100, -10},
    {L"--10", {25.0}, 100, -10},
    {L"=-00:00:01:01", {25.0}, 100, -26},
    // the day stays
    {L"10", {25.0}, 3 * kDay25 + 77, 3 * kDay25 + 10},
    {L"10", {25.0}, -5, 10},
    // shared labels
    {L"00:00:01:00.1", {50.0, 0, 2}, 0, 51},
    {L"1.0", {50.0, 0, 2}, 0, 50},
    {L"0:0:0:0.3", {50.0, 0, 2}, 0, 3},
};

TEST(TimecodeParse, Labels) {
    for (const ParseRow& row : kLabels) {
        long long frame = -12345;
        EXPECT_TRUE(QV_ParseTimecode(row.text, row.rate, row.current, frame)) << row.text;
        EXPECT_EQ(frame, row.frame) << row.text;
    }
}

const ParseRow kCounts[] = {
    {L"75", {25.0}, 0, 75},
    {L" 1 234 567 ", {25.0}, 0, 1234567},
    {L"1,234.567", {25.0}, 0, 1234567},
    {L"1.000", {25.0}, 0, 1000},
    {L"+5", {25.0}, 10, 15},
    {L"-5", {25.0}, 10, 5},
    {L"=-5", {25.0}, 10, -5},
    {L"9223372036854775807", {25.0}, 0, LLONG_MAX},
    {L"9223372036854775808", {25.0}, 0, LLONG_MAX},
    {L"=-9223372036854775808", {25.0}, 0, LLONG_MIN},
    {L"99999999999999999999999999999", {25.0}, 0, LLONG_MAX},
    {L"--99999999999999999999999999999", {25.0}, 0, LLONG_MIN},
    {L"+9223372036854775807", {25.0}, 1, LLONG_MAX},
};

TEST(TimecodeParse, FrameCounts) {
    for (const ParseRow& row : kCounts) {
        long long frame = -12345;
        EXPECT_TRUE(QV_ParseTimecode(row.text, row.rate, row.current, frame, QVTimecodeText::FrameCount))
            << row.text;
        EXPECT_EQ(frame, row.frame) << row.text;
    }
}

TEST(TimecodeParse, RefusesTheRest) {
    const wchar_t* const refused[] = {
        nullptr,
        L"",
        L"   ",
        L"abc",
        L"1a",
        L":",
        L"...",
        L"+",
        L"=-",
        L"+-5",
        L"1:2:3:4:5",
        L"1:2:3:4:5:6",
        L"१२",
        L"１２",
        L"12-13",
        L"-+1",
        L"1234567890123456789.0",
    };
    for (const wchar_t* text : refused) {
        long long frame = -12345;
        EXPECT_FALSE(QV_ParseTimecode(text, {25.0}, 0, frame)) << (text ? text : L"null");
        EXPECT_EQ(frame, -12345);
    }
    long long frame = -12345;
    for (const wchar_t* count : {L"1:2", L"12.7", L"12,75", L"1 2", L"1,2345", L"12.", L"-12.7", L"1,,234"})
        EXPECT_FALSE(QV_ParseTimecode(count, {25.0}, 0, frame, QVTimecodeText::FrameCount)) << count;
    EXPECT_FALSE(QV_ParseTimecode(std::wstring(1 << 20, L':').c_str(), {25.0}, 0, frame));
    EXPECT_FALSE(QV_ParseTimecode(std::wstring(1 << 20, L'9').c_str(), {25.0}, 0, frame));
    EXPECT_EQ(frame, -12345);
}

TEST(TimecodeParse, ReadsWhatFormatWrites) {
    const TimecodeFrameRate rates[] = {{23.976}, {25.0},      {29.97, 1},   {59.94, 1},
                                       {100.0},  {119.88, 1}, {50.0, 0, 2}, {119.88, 1, 4}};
    for (const TimecodeFrameRate& rate : rates) {
        const QVTimecodeCount count = QV_GetTimecodeCount(rate);
        const long long framesPerDay = count.nLabelsPerDay * count.nFramesPerLabel;
        for (long long frame = 0; frame < framesPerDay; frame += 997) {
            long long back = -1;
            ASSERT_TRUE(QV_ParseTimecode(Format(frame, rate).c_str(), rate, 0, back));
            ASSERT_EQ(back, frame) << rate.dFrameRate;
        }
    }
}

} // namespace
