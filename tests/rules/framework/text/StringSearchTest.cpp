// CString: searching and comparing.
#include "TextPrinter.h"

#include <climits>

namespace {

int Sign(int value) {
    return (value > 0) - (value < 0);
}

TEST(StringSearch, FindUnit) {
    const CString text(L"abcabc\0x", 8);
    EXPECT_EQ(0, text.Find(L'a'));
    EXPECT_EQ(3, text.Find(L'a', 1));
    EXPECT_EQ(3, text.Find(L'a', 3));
    EXPECT_EQ(-1, text.Find(L'a', 4));
    EXPECT_EQ(-1, text.Find(L'z'));
    EXPECT_EQ(7, text.Find(L'x')) << "behind an embedded NUL";
    EXPECT_EQ(6, text.Find(L'\0'));
    for (const int start : {-1, 8, 9, INT_MAX, INT_MIN})
        EXPECT_EQ(-1, text.Find(L'x', start)) << start;
    EXPECT_EQ(-1, CString().Find(L'a'));
    EXPECT_EQ(-1, CString().Find(L'\0'));
}

TEST(StringSearch, FindText) {
    const CString text = L"abcabcd";
    EXPECT_EQ(0, text.Find(L"abc"));
    EXPECT_EQ(3, text.Find(L"abc", 1));
    EXPECT_EQ(3, text.Find(L"abcd"));
    EXPECT_EQ(-1, text.Find(L"abce"));
    EXPECT_EQ(-1, text.Find(L"abcabcda"));
    EXPECT_EQ(0, text.Find(L""));
    EXPECT_EQ(4, text.Find(L"", 4));
    EXPECT_EQ(7, text.Find(L"", 7));
    EXPECT_EQ(-1, text.Find(L"", 8));
    EXPECT_EQ(-1, text.Find(L"a", -1));
    EXPECT_EQ(-1, text.Find(L"a", INT_MAX));
    EXPECT_EQ(-1, text.Find(static_cast<LPCWSTR>(nullptr)));
    EXPECT_EQ(0, CString().Find(L""));
    EXPECT_EQ(-1, CString().Find(L"a"));
    EXPECT_EQ(0, text.Find(text));
    EXPECT_EQ(4, CString(L"aabaabaac").Find(L"abaac"));
}

TEST(StringSearch, FromTheEndAndOneOf) {
    const CString text = L"c:\\a\\b.ext";
    EXPECT_EQ(4, text.ReverseFind(L'\\'));
    EXPECT_EQ(0, text.ReverseFind(L'c'));
    EXPECT_EQ(-1, text.ReverseFind(L'z'));
    EXPECT_EQ(-1, CString().ReverseFind(L'z'));
    EXPECT_EQ(1, text.FindOneOf(L"\\:"));
    EXPECT_EQ(6, text.FindOneOf(L"."));
    EXPECT_EQ(-1, text.FindOneOf(L"#"));
    EXPECT_EQ(-1, text.FindOneOf(L""));
    EXPECT_EQ(-1, text.FindOneOf(nullptr));
}

struct CompareCase {
    LPCWSTR left;
    LPCWSTR right;
    int order;
    int orderNoCase;
};

TEST(StringCompare, Order) {
    const CompareCase cases[] = {
        {L"", L"", 0, 0},        {L"a", L"a", 0, 0},
        {L"a", L"b", -1, -1},    {L"b", L"a", 1, 1},
        {L"a", L"A", 1, 0},      {L"A", L"a", -1, 0},
        {L"a", L"B", 1, -1},     {L"ab", L"a", 1, 1},
        {L"", L"a", -1, -1},     {L"\u00C4", L"\u00E4", -1, 0},
        {L"_", L"a", -1, -1},    {L"_", L"A", 1, -1},
        {L"\xFFFF", L"a", 1, 1}, {L"file10", L"file9", -1, -1},
        {L"", nullptr, 0, 0},    {L"a", nullptr, 1, 1},
    };
    for (const CompareCase& c : cases) {
        const CString left = c.left;
        EXPECT_EQ(c.order, Sign(left.Compare(c.right))) << left << " " << Shown(c.right);
        EXPECT_EQ(c.orderNoCase, Sign(left.CompareNoCase(c.right))) << left << " " << Shown(c.right);
    }
}

TEST(StringCompare, Operators) {
    const CString a = L"a", b = L"b", again = L"a";
    EXPECT_TRUE(a == again && a == L"a" && L"a" == a && a == L'a' && L'a' == a);
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a && a != L'b' && L'b' != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a);
    EXPECT_TRUE(a <= b && a <= again && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b >= a && a >= again && a >= L"a" && L"a" >= a);
    EXPECT_FALSE(a == b || a == L"b" || a != again || a < again || a > again || CString(L"aa") == L'a');
}

TEST(StringCompare, Collate) {
    EXPECT_LT(CString(L"a").Collate(L"B"), 0);
    EXPECT_GT(CString(L"b").Collate(L"A"), 0);
    EXPECT_EQ(0, CString(L"a").CollateNoCase(L"A"));
    EXPECT_EQ(0, CString().Collate(nullptr));
}

} // namespace
