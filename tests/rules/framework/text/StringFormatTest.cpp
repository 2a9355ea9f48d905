// CString: every conversion of Format.
#include "TextPrinter.h"

#include <climits>
#include <cmath>
#include <limits>
#include <string>

namespace {

#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"

template <class... Args> CString Formatted(LPCWSTR format, Args... args) {
    CString text = L"former";
    text.Format(format, args...);
    return text;
}

TEST(StringFormat, Integers) {
    EXPECT_TRUE(SameText(L"0 -1 2147483647", Formatted(L"%d %i %d", 0, -1, INT_MAX)));
    EXPECT_TRUE(SameText(L"-2147483648", Formatted(L"%d", INT_MIN)));
    EXPECT_TRUE(SameText(L"4294967295", Formatted(L"%u", UINT_MAX)));
    EXPECT_TRUE(SameText(L"ff FF 0xff 0XFF", Formatted(L"%x %X %#x %#X", 255, 255, 255, 255)));
    EXPECT_TRUE(SameText(L"17 017", Formatted(L"%o %#o", 15, 15)));
    EXPECT_TRUE(SameText(L"ffffffff", Formatted(L"%x", -1)));
    EXPECT_TRUE(SameText(L"[   42][42   ][00042][+42][ 42]",
                         Formatted(L"[%5d][%-5d][%05d][%+d][% d]", 42, 42, 42, 42, 42)));
    EXPECT_TRUE(SameText(L"[  007][007  ][]", Formatted(L"[%5.3d][%-5.3d][%.0d]", 7, 7, 0)));
    EXPECT_TRUE(SameText(L"[   42][42   ][00042]", Formatted(L"[%*d][%*d][%.*d]", 5, 42, -5, 42, 5, 42)));
}

TEST(StringFormat, SizesOfIntegers) {
    EXPECT_TRUE(SameText(L"-1 65535", Formatted(L"%hd %hu", 0xFFFF, 0xFFFF)));
    EXPECT_TRUE(SameText(L"-1 255", Formatted(L"%hhd %hhu", 0xFF, 0x1FF)));
    EXPECT_TRUE(SameText(L"-5 4294967291", Formatted(L"%ld %lu", -5L, static_cast<unsigned long>(-5))));
    EXPECT_TRUE(SameText(L"9223372036854775807", Formatted(L"%lld", LLONG_MAX)));
    EXPECT_TRUE(SameText(L"-9223372036854775808", Formatted(L"%I64d", LLONG_MIN)));
    EXPECT_TRUE(SameText(L"18446744073709551615", Formatted(L"%I64u", ULLONG_MAX)));
    EXPECT_TRUE(SameText(L"18446744073709551615", Formatted(L"%llu", ULLONG_MAX)));
    EXPECT_TRUE(SameText(L"deadbeefcafe", Formatted(L"%I64x", 0xDEADBEEFCAFELL)));
    EXPECT_TRUE(SameText(L"-7 4294967289", Formatted(L"%I32d %I32u", -7, -7)));
    EXPECT_TRUE(SameText(L"12345678901 5", Formatted(L"%Id %Iu", 12345678901LL, size_t{5})));
    EXPECT_TRUE(SameText(L"12345678901 -3 9", Formatted(L"%zd %td %jd", 12345678901LL, -3LL, 9LL)));
    EXPECT_TRUE(SameText(L"1 2 3", Formatted(L"%lld %d %I64d", 1LL, 2, 3LL))) << "each takes its own size";
}

// Every mixture of flags, width and precision, against the C run-time. Signs and blanks are of signed conversions
// only; what run-times do with them elsewhere differs.
TEST(StringFormat, IntegersAgreeWithTheRunTime) {
    const std::string flags[] = {"", "-", "0", "#", "-0", "#0", "-#", "+", " ", "+0", "- ", "+ ", "-+0"};
    constexpr size_t kFlagsForAll = 7;
    const long long values[] = {0, 1, -1, 8, 255, -4096, LLONG_MAX, LLONG_MIN};
    const std::string letters = "diuoxX";
    int compared = 0;
    for (size_t flag = 0; flag < std::size(flags); ++flag)
        for (const char* width : {"", "1", "5", "30"})
            for (const char* precision : {"", ".", ".0", ".1", ".7", ".25"})
                for (const char letter : flag < kFlagsForAll ? letters : letters.substr(0, 2))
                    for (const long long value : values) {
                        if (value == 0 && letter == 'o' && flags[flag].find('#') != std::string::npos)
                            continue; // the run-time here loses the single zero
                        const std::string format = "%" + flags[flag] + width + precision + "ll" + letter;
                        char expected[64];
                        snprintf(expected, sizeof(expected), format.c_str(), value);
                        ASSERT_TRUE(SameText(CString(expected), Formatted(CString(format.c_str()), value)))
                            << format;
                        ++compared;
                    }
    EXPECT_EQ(((7 * 6 + 6 * 2) * 8 - 3) * 4 * 6, compared);
    EXPECT_TRUE(SameText(L"0 0 07", Formatted(L"%#o %#.0o %#o", 0, 0, 7)));
}

TEST(StringFormat, Floats) {
    EXPECT_TRUE(SameText(L"3.141593 3.14 3", Formatted(L"%f %.2f %.0f", 3.14159265, 3.14159265, 3.14159265)));
    EXPECT_TRUE(SameText(L"1.000000e+05 1E-03", Formatted(L"%e %.0E", 1e5, 1e-3)));
    EXPECT_TRUE(SameText(L"100000 1e+06 0.5", Formatted(L"%g %g %G", 1e5, 1e6, 0.5)));
    EXPECT_TRUE(
        SameText(L"[    1.50][1.50    ][00001.50]", Formatted(L"[%8.2f][%-8.2f][%08.2f]", 1.5, 1.5, 1.5)));
    EXPECT_TRUE(
        SameText(L"-0.0 inf nan", Formatted(L"%.1f %f %f", -0.0, std::numeric_limits<double>::infinity(),
                                            std::abs(std::numeric_limits<double>::quiet_NaN()))));
    EXPECT_TRUE(SameText(L"2.5", Formatted(L"%.1Lf", 2.5L)));
    EXPECT_TRUE(SameText(L"0x1p+0", Formatted(L"%a", 1.0)));
    EXPECT_EQ(309 + 7, Formatted(L"%f", std::numeric_limits<double>::max()).GetLength());
    EXPECT_EQ(502, Formatted(L"%.500f", 1.0 / 3).GetLength());
}

TEST(StringFormat, Texts) {
    EXPECT_TRUE(SameText(L"wide narrow", Formatted(L"%s %S", L"wide", "narrow")));
    EXPECT_TRUE(SameText(L"wide wide narrow wide",
                         Formatted(L"%ls %ws %hs %lS", L"wide", L"wide", "narrow", L"wide")));
    EXPECT_TRUE(SameText(L"narrow", Formatted(L"%hS", "narrow")));
    EXPECT_TRUE(SameText(L"(null) (null)",
                         Formatted(L"%s %S", static_cast<LPCWSTR>(nullptr), static_cast<LPCSTR>(nullptr))));
    EXPECT_TRUE(SameText(L"[   ab][ab   ][a][    a]",
                         Formatted(L"[%5s][%-5s][%.1s][%5.1s]", L"ab", L"ab", L"ab", L"ab")));
    EXPECT_TRUE(SameText(L"[]", Formatted(L"[%.0s]", L"ab")));
    EXPECT_TRUE(SameText(L"[   ab][a]", Formatted(L"[%5S][%.1S]", "ab", "ab")));
    EXPECT_TRUE(SameText(L"\xD83D\xDE00|\u4E2D", Formatted(L"%s|%s", L"\xD83D\xDE00", L"\u4E2D")));
    const WCHAR open[] = {L'a', L'b'}; // without terminator: the precision says where it ends
    EXPECT_TRUE(SameText(L"ab", Formatted(L"%.2s", open)));
    EXPECT_TRUE(SameText(L"x\u00E9y", Formatted(L"x%cy", L'\u00E9')));
    EXPECT_TRUE(SameText(L"a b c d", Formatted(L"%c %C %hc %lc", L'a', 'b', 'c', L'd')));
    EXPECT_TRUE(SameText(L"[  a][a  ]", Formatted(L"[%3c][%-3c]", L'a', L'a')));
    EXPECT_EQ(3, Formatted(L"a%cb", 0).GetLength()) << "a NUL is a unit like others";
}

TEST(StringFormat, Pointers) {
    EXPECT_TRUE(SameText(L"00000000DEADBEEF", Formatted(L"%p", reinterpret_cast<void*>(0xDEADBEEFu))));
    EXPECT_TRUE(SameText(L"0000000000000000", Formatted(L"%p", static_cast<void*>(nullptr))));
    EXPECT_TRUE(SameText(L"[    0000000000000001]", Formatted(L"[%20p]", reinterpret_cast<void*>(1))));
}

TEST(StringFormat, OddFormats) {
    EXPECT_TRUE(SameText(L"100%", Formatted(L"%d%%", 100)));
    EXPECT_TRUE(SameText(L"", Formatted(L"")));
    EXPECT_TRUE(SameText(L"plain", Formatted(L"plain")));
    EXPECT_TRUE(SameText(L"%", Formatted(L"%")));
    EXPECT_TRUE(SameText(L"a%-5", Formatted(L"a%-5")));
    EXPECT_TRUE(SameText(L"%n%k", Formatted(L"%n%k"))) << "no writing through the arguments";
    EXPECT_TRUE(SameText(L"%y 5", Formatted(L"%y %d", 5)));
    CString text = L"x";
    text.FormatV(nullptr, nullptr);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(kAfxMaxFormatField, Formatted(L"%99999999999999d", 1).GetLength());
    EXPECT_EQ(kAfxMaxFormatField, Formatted(L"%*s", INT_MAX, L"x").GetLength());
    EXPECT_EQ(kAfxMaxFormatField, Formatted(L"%*s", INT_MIN, L"x").GetLength());
}

TEST(StringFormat, ArgumentsInsideTheText) {
    CString text = L"abc";
    text.Format(L"<%s|%s>", text.GetString(), text.GetString() + 1);
    EXPECT_TRUE(SameText(L"<abc|bc>", text));
    text.AppendFormat(L"%s%d", text.GetString(), 1);
    EXPECT_TRUE(SameText(L"<abc|bc><abc|bc>1", text));
    text.Format(text, 1);
    EXPECT_TRUE(SameText(L"<abc|bc><abc|bc>1", text));
}

TEST(StringFormat, LongResults) {
    const CString part(L'x', 1'000'000);
    CString text;
    text.Format(L"%s-%s", part.GetString(), part.GetString());
    EXPECT_EQ(2'000'001, text.GetLength());
    EXPECT_EQ(L'-', text[1'000'000]);
}

TEST(StringFormat, AppendFormat) {
    CString text;
    for (int i = 0; i < 3; ++i)
        text.AppendFormat(L"%d;", i);
    EXPECT_TRUE(SameText(L"0;1;2;", text));
    text.AppendFormat(static_cast<LPCWSTR>(nullptr));
    EXPECT_TRUE(SameText(L"0;1;2;", text));
}

TEST(StringFormat, NumberedInserts) {
    CString text;
    text.FormatMessage(L"%2 then %1!d!", 5, L"first");
    EXPECT_TRUE(SameText(L"first then 5", text));
    text.FormatMessage(static_cast<LPCWSTR>(nullptr));
    EXPECT_TRUE(text.IsEmpty());
}

} // namespace
