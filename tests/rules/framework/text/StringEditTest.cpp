// CString: pieces, trimming, replacing, inserting, deleting, case, tokens.
#include "TextPrinter.h"

#include <climits>
#include <string>
#include <vector>

namespace {

struct PieceCase {
    LPCWSTR text;
    int first;
    int count;
    LPCWSTR expected;
};

TEST(StringPieces, Mid) {
    const PieceCase cases[] = {
        {L"abcdef", 0, 6, L"abcdef"},
        {L"abcdef", 2, 3, L"cde"},
        {L"abcdef", 2, 100, L"cdef"},
        {L"abcdef", -3, 2, L"ab"},
        {L"abcdef", 6, 1, L""},
        {L"abcdef", 7, 1, L""},
        {L"abcdef", 2, 0, L""},
        {L"abcdef", 2, -1, L""},
        {L"abcdef", INT_MAX, INT_MAX, L""},
        {L"abcdef", 1, INT_MAX, L"bcdef"},
        {L"abcdef", INT_MIN, INT_MAX, L"abcdef"},
        {L"", 0, 0, L""},
        {L"", 0, 5, L""},
        {L"", 3, 5, L""},
        {L"", -1, -1, L""},
    };
    for (const PieceCase& c : cases)
        EXPECT_TRUE(SameText(c.expected, CString(c.text).Mid(c.first, c.count)))
            << c.first << ", " << c.count;
    EXPECT_TRUE(SameText(L"def", CString(L"abcdef").Mid(3)));
    EXPECT_TRUE(SameText(L"abcdef", CString(L"abcdef").Mid(-3)));
    EXPECT_TRUE(SameText(L"", CString(L"abcdef").Mid(9)));
}

TEST(StringPieces, LeftAndRight) {
    const CString text = L"abc";
    struct Row {
        int count;
        LPCWSTR left;
        LPCWSTR right;
    };
    const Row rows[] = {{0, L"", L""},       {1, L"a", L"c"}, {2, L"ab", L"bc"},   {3, L"abc", L"abc"},
                        {4, L"abc", L"abc"}, {-1, L"", L""},  {INT_MIN, L"", L""}, {INT_MAX, L"abc", L"abc"}};
    for (const Row& row : rows) {
        EXPECT_TRUE(SameText(row.left, text.Left(row.count))) << row.count;
        EXPECT_TRUE(SameText(row.right, text.Right(row.count))) << row.count;
    }
    EXPECT_EQ(text.GetString(), text.Left(3).GetString()) << "the whole is shared, not copied";
}

TEST(StringPieces, Spans) {
    const CString text = L"0042abc42";
    EXPECT_TRUE(SameText(L"0042", text.SpanIncluding(L"0123456789")));
    EXPECT_TRUE(SameText(L"", text.SpanIncluding(L"abc")));
    EXPECT_TRUE(SameText(L"", text.SpanIncluding(L"")));
    EXPECT_TRUE(SameText(L"", text.SpanIncluding(nullptr)));
    EXPECT_TRUE(SameText(L"0042abc42", text.SpanIncluding(L"abc024")));
    EXPECT_TRUE(SameText(L"0042", text.SpanExcluding(L"cba")));
    EXPECT_TRUE(SameText(L"", text.SpanExcluding(L"0")));
    EXPECT_TRUE(SameText(L"0042abc42", text.SpanExcluding(L"")));
    EXPECT_TRUE(SameText(L"0042abc42", text.SpanExcluding(L"xyz")));
    EXPECT_TRUE(SameText(L"0042abc42", text.SpanExcluding(nullptr)));
}

struct TrimCase {
    LPCWSTR text;
    LPCWSTR set; // null: white space
    LPCWSTR left;
    LPCWSTR right;
    LPCWSTR both;
};

TEST(StringEdit, Trim) {
    const TrimCase cases[] = {
        {L"  a b  ", nullptr, L"a b  ", L"  a b", L"a b"},
        {L"\t\r\n\v\f a\t", nullptr, L"a\t", L"\t\r\n\v\f a", L"a"},
        {L"\u3000\u00A0x\u2003", nullptr, L"x\u2003", L"\u3000\u00A0x", L"x"},
        {L"   ", nullptr, L"", L"", L""},
        {L"", nullptr, L"", L"", L""},
        {L"abc", nullptr, L"abc", L"abc", L"abc"},
        {L"xxaxx", L"x", L"axx", L"xxa", L"a"},
        {L"xyaxy", L"yx", L"axy", L"xya", L"a"},
        {L"xyaxy", L"", L"xyaxy", L"xyaxy", L"xyaxy"},
        {L"xyxy", L"xy", L"", L"", L""},
        {L" x ", L"x", L" x ", L" x ", L" x "},
    };
    for (const TrimCase& c : cases) {
        CString left = c.text, right = c.text, both = c.text;
        if (c.set) {
            left.TrimLeft(c.set);
            right.TrimRight(c.set);
            both.Trim(c.set);
        } else {
            left.TrimLeft();
            right.TrimRight();
            both.Trim();
        }
        EXPECT_TRUE(SameText(c.left, left)) << Shown(c.text);
        EXPECT_TRUE(SameText(c.right, right)) << Shown(c.text);
        EXPECT_TRUE(SameText(c.both, both)) << Shown(c.text);
    }
    EXPECT_TRUE(SameText(L"a--", CString(L"--a--").TrimLeft(L'-')));
    EXPECT_TRUE(SameText(L"--a", CString(L"--a--").TrimRight(L'-')));
    EXPECT_TRUE(SameText(L"a", CString(L"--a--").Trim(L'-')));
    EXPECT_TRUE(SameText(L" a ", CString(L" a ").Trim(static_cast<LPCWSTR>(nullptr))));
    CString self = L"aba";
    self.Trim(self.GetString());
    EXPECT_TRUE(self.IsEmpty());
}

struct ReplaceCase {
    LPCWSTR text;
    LPCWSTR from;
    LPCWSTR to;
    LPCWSTR expected;
    int count;
};

TEST(StringEdit, Replace) {
    const ReplaceCase cases[] = {
        {L"abcabc", L"b", L"x", L"axcaxc", 2},
        {L"abcabc", L"bc", L"", L"aa", 2},
        {L"abcabc", L"abc", L"abcabc", L"abcabcabcabc", 2},
        {L"aaaa", L"aa", L"a", L"aa", 2},
        {L"aaaaa", L"aa", L"b", L"bba", 2},
        {L"abc", L"", L"x", L"abc", 0},
        {L"abc", nullptr, L"x", L"abc", 0},
        {L"abc", L"b", nullptr, L"ac", 1},
        {L"abc", L"B", L"x", L"abc", 0},
        {L"", L"a", L"b", L"", 0},
        {L"abc", L"abcd", L"x", L"abc", 0},
        {L"abc", L"abc", L"", L"", 1},
        {L"\xD83D\xDE00!", L"\xD83D\xDE00", L":)", L":)!", 1},
    };
    for (const ReplaceCase& c : cases) {
        CString text = c.text;
        EXPECT_EQ(c.count, text.Replace(c.from, c.to));
        EXPECT_TRUE(SameText(c.expected, text));
    }
    CString units = L"a/b/c";
    EXPECT_EQ(2, units.Replace(L'/', L'\\'));
    EXPECT_TRUE(SameText(L"a\\b\\c", units));
    EXPECT_EQ(0, units.Replace(L'a', L'a'));
    CString self = L"ab";
    EXPECT_EQ(1, self.Replace(self, self + L"c"));
    EXPECT_TRUE(SameText(L"abc", self));
    self = L"aXa";
    EXPECT_EQ(1, self.Replace(L"X", self));
    EXPECT_TRUE(SameText(L"aaXaa", self));
}

TEST(StringEdit, InsertAndDelete) {
    CString text = L"bd";
    EXPECT_EQ(3, text.Insert(0, L'a'));
    EXPECT_EQ(4, text.Insert(2, L"c"));
    EXPECT_EQ(6, text.Insert(100, L"ef"));
    EXPECT_EQ(7, text.Insert(-5, L'_'));
    EXPECT_TRUE(SameText(L"_abcdef", text));
    EXPECT_EQ(7, text.Insert(3, static_cast<LPCWSTR>(nullptr)));
    EXPECT_EQ(7, text.Insert(3, L""));
    EXPECT_EQ(6, text.Delete(0));
    EXPECT_EQ(4, text.Delete(1, 2));
    EXPECT_TRUE(SameText(L"adef", text));
    EXPECT_EQ(4, text.Delete(4));
    EXPECT_EQ(4, text.Delete(1, 0));
    EXPECT_EQ(4, text.Delete(1, -7));
    EXPECT_EQ(3, text.Delete(-2, 1));
    EXPECT_EQ(1, text.Delete(1, INT_MAX));
    EXPECT_TRUE(SameText(L"d", text));
    EXPECT_EQ(0, text.Delete(INT_MIN, INT_MAX));
    EXPECT_EQ(0, CString().Delete(0));
    CString self = L"abcd";
    EXPECT_EQ(6, self.Insert(2, self.GetString() + 2));
    EXPECT_TRUE(SameText(L"abcdcd", self));
}

TEST(StringEdit, Remove) {
    CString text = L"banana";
    EXPECT_EQ(3, text.Remove(L'a'));
    EXPECT_TRUE(SameText(L"bnn", text));
    EXPECT_EQ(0, text.Remove(L'x'));
    EXPECT_EQ(2, text.Remove(L'n'));
    EXPECT_EQ(1, text.Remove(L'b'));
    EXPECT_TRUE(SameText(L"", text));
    EXPECT_EQ(0, text.Remove(L'b'));
    CString nul(L"a\0b\0", 4);
    EXPECT_EQ(2, nul.Remove(L'\0'));
    EXPECT_TRUE(SameText(L"ab", nul));
}

TEST(StringEdit, CaseAndOrder) {
    EXPECT_TRUE(SameText(L"ABC-\u00C4\u0416 9", CString(L"abc-\u00E4\u0436 9").MakeUpper()));
    EXPECT_TRUE(SameText(L"abc-\u00E4\u0436 9", CString(L"ABC-\u00C4\u0416 9").MakeLower()));
    EXPECT_TRUE(SameText(L"\u4E2D\u6587", CString(L"\u4E2D\u6587").MakeUpper()));
    EXPECT_TRUE(SameText(L"", CString().MakeLower()));
    EXPECT_TRUE(SameText(L"cba", CString(L"abc").MakeReverse()));
    EXPECT_TRUE(SameText(L"a", CString(L"a").MakeReverse()));
    EXPECT_TRUE(SameText(L"", CString().MakeReverse()));
    EXPECT_TRUE(SameText(L"b\xD83D\xDE00"
                         L"a",
                         CString(L"a\xD83D\xDE00"
                                 L"b")
                             .MakeReverse()));
    EXPECT_TRUE(SameText(L"\xD83D\xDE01\xD83D\xDE00", CString(L"\xD83D\xDE00\xD83D\xDE01").MakeReverse()));
    CString twice = L"x\xD83D\xDE00y\xDE00\xD83D";
    EXPECT_TRUE(SameText(L"\xD83D\xDE00y\xD83D\xDE00x", twice.MakeReverse())) << "loose halves may meet";
}

std::vector<std::wstring> Tokens(LPCWSTR text, LPCWSTR delimiters) {
    std::vector<std::wstring> tokens;
    const CString whole = text;
    int at = 0;
    for (CString token = whole.Tokenize(delimiters, at); at != -1; token = whole.Tokenize(delimiters, at))
        tokens.emplace_back(token.GetString());
    return tokens;
}

TEST(StringEdit, Tokenize) {
    typedef std::vector<std::wstring> List;
    EXPECT_EQ((List{L"First", L"Second", L"Third"}), Tokens(L"%First Second#Third", L"% #"));
    EXPECT_EQ((List{L"a", L"b"}), Tokens(L";;a;;b;;", L";"));
    EXPECT_EQ(List{}, Tokens(L";;;", L";"));
    EXPECT_EQ(List{}, Tokens(L"", L";"));
    EXPECT_EQ(List{L"abc"}, Tokens(L"abc", L";"));
    EXPECT_EQ(List{L"a;b"}, Tokens(L"a;b", L""));
    EXPECT_EQ(List{L"a;b"}, Tokens(L"a;b", nullptr));
    const CString text = L"abc";
    int at = -1;
    EXPECT_TRUE(text.Tokenize(L";", at).IsEmpty());
    EXPECT_EQ(-1, at);
    at = 99;
    EXPECT_TRUE(text.Tokenize(L";", at).IsEmpty());
    EXPECT_EQ(-1, at);
    at = 1;
    EXPECT_TRUE(SameText(L"bc", text.Tokenize(L";", at)));
    int after = 0;
    EXPECT_TRUE(SameText(L"a", CString(L"a;b").Tokenize(L";", after)));
    EXPECT_EQ(2, after) << "behind the delimiter";
}

// The documented loop: it ends when an empty token comes.
TEST(StringEdit, TokenizeAsDocumentedLoop) {
    const CString text = L"one,two";
    int position = 0, count = 0;
    CString token = text.Tokenize(L",", position);
    while (!token.IsEmpty() && count < 10) {
        ++count;
        token = text.Tokenize(L",", position);
    }
    EXPECT_EQ(2, count);
}

} // namespace
