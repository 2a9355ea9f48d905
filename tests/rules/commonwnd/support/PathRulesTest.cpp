// Paths taken apart, multi-selections split, extensions recognised.
#include "support/FileNameRules.h"
#include "support/TextCase.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

const std::wstring kLong(300, L'n');

struct PartsRow {
    const char* name;
    std::wstring path, drive, folder, base, extension;
};

class Parts : public testing::TestWithParam<PartsRow> {};

TEST_P(Parts, OfAPath) {
    const PartsRow& row = GetParam();
    const PathParts parts = SplitPath(row.path);
    EXPECT_EQ(row.drive, parts.drive);
    EXPECT_EQ(row.folder, parts.folder);
    EXPECT_EQ(row.base, parts.name);
    EXPECT_EQ(row.extension, parts.extension);
}

INSTANTIATE_TEST_SUITE_P(Table, Parts,
                         testing::Values(PartsRow{"empty", L"", L"", L"", L"", L""},
                                         PartsRow{"plain", L"c:\\v\\a.avi", L"c:", L"\\v\\", L"a", L".avi"},
                                         PartsRow{"driveOnly", L"c:", L"c:", L"", L"", L""},
                                         PartsRow{"driveAndName", L"c:a.b", L"c:", L"", L"a", L".b"},
                                         PartsRow{"nameOnly", L"a", L"", L"", L"a", L""},
                                         PartsRow{"twoDots", L"a.b.c", L"", L"", L"a.b", L".c"},
                                         PartsRow{"dotInFolder", L"c:\\v.d\\a", L"c:", L"\\v.d\\", L"a", L""},
                                         PartsRow{"slashes", L"c:/v.d/a.b", L"c:", L"/v.d/", L"a", L".b"},
                                         PartsRow{"trailingDot", L"a.", L"", L"", L"a", L"."},
                                         PartsRow{"leadingDot", L".psd", L"", L"", L"", L".psd"},
                                         PartsRow{"unc", L"\\\\s\\h\\a.b", L"", L"\\\\s\\h\\", L"a", L".b"},
                                         PartsRow{"longPrefix", L"\\\\?\\c:\\a.b", L"", L"\\\\?\\c:\\", L"a",
                                                  L".b"},
                                         PartsRow{"longParts", L"c:\\" + kLong + L"\\" + kLong + L"." + kLong,
                                                  L"c:", L"\\" + kLong + L"\\", kLong, L"." + kLong}),
                         [](const auto& row) { return row.param.name; });

struct SelectionRow {
    const char* name;
    std::wstring text;
    std::vector<std::wstring> files;
};

class Selection : public testing::TestWithParam<SelectionRow> {};

TEST_P(Selection, IsSplit) {
    EXPECT_EQ(GetParam().files, SplitSelection(GetParam().text, L"D:\\v"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, Selection,
    testing::Values(SelectionRow{"empty", L"", {}}, SelectionRow{"single", L"single.avi", {L"single.avi"}},
                    SelectionRow{"singleWithSpaces", L"a b.avi", {L"a b.avi"}},
                    SelectionRow{"two", L"\"a.avi\" \"b.avi\"", {L"D:\\v\\a.avi", L"D:\\v\\b.avi"}},
                    SelectionRow{"oneQuoted", L"\"a.avi\"", {L"D:\\v\\a.avi"}},
                    SelectionRow{"textBeforeTheFirstQuote", L"x \"a\"", {L"D:\\v\\a"}},
                    SelectionRow{"textBetween", L"\"a\",x,\"b\"", {L"D:\\v\\a", L"D:\\v\\b"}},
                    SelectionRow{"noSpaceBetween", L"\"a\"\"b\"", {L"D:\\v\\a", L"D:\\v\\b"}},
                    SelectionRow{"unpaired", L"\"a\" \"b", {L"D:\\v\\a"}},
                    SelectionRow{"quoteOnly", L"\"", {}}, SelectionRow{"emptyQuotes", L"\"\"", {L"D:\\v\\"}},
                    SelectionRow{"threeQuotes", L"\"\"\"", {L"D:\\v\\"}},
                    SelectionRow{"surrogatePair", L"\"\U0001F3AC\"", {L"D:\\v\\\U0001F3AC"}},
                    SelectionRow{"separatorsOnly", L" ;, ", {L" ;, "}}),
    [](const auto& row) { return row.param.name; });

TEST(Selection, TakesHugeTexts) {
    constexpr std::size_t kFiles = 52000;
    std::wstring text;
    for (std::size_t i = 0; i < kFiles; ++i)
        text += L"\"ab\" ";
    EXPECT_EQ(std::vector<std::wstring>(kFiles, L"D:\\v\\ab"), SplitSelection(text, L"D:\\v"));
    EXPECT_EQ(130000u, SplitSelection(std::wstring(260000, L'"'), L"").size());
}

TEST(Preview, KnowsItsSeventeenExtensionsOnly) {
    for (const wchar_t* known : {L"jpg", L"jpeg", L"png", L"bmp", L"gif", L"tif", L"tga", L"pcx", L"avi",
                                 L"wmv", L"mov", L"mxf", L"ts", L"mp4", L"mpg", L"flv", L"psd"}) {
        EXPECT_TRUE(HasPreviewExtension(std::wstring(L"c:\\a.") + known)) << testing::PrintToString(known);
        EXPECT_TRUE(HasPreviewExtension(L"." + UpperText(known))) << testing::PrintToString(known);
        EXPECT_FALSE(HasPreviewExtension(known)) << "without a dot";
        EXPECT_FALSE(HasPreviewExtension(std::wstring(L"a.") + known + L" ")) << "with a trailing space";
        EXPECT_FALSE(HasPreviewExtension(std::wstring(L"a.") + known + L".")) << "with a trailing dot";
    }
    for (const wchar_t* other : {L"", L"a", L"a.", L"a.mpeg", L"a.tiff", L"a.psb", L"a.m", L".",
                                 L"c:\\a.avi\\b", L"a.av\u0131", L"a.\U0001F3AC"})
        EXPECT_FALSE(HasPreviewExtension(other)) << testing::PrintToString(other);
    EXPECT_TRUE(HasPreviewExtension(L"a.TS"));
    EXPECT_FALSE(HasPreviewExtension(std::wstring(260000, L'.')));
}

TEST(Psd, IsKnownByItsExtension) {
    for (const wchar_t* psd : {L"a.psd", L"c:\\x\\A.PSD", L".psd", L"a.b.Psd", L"\\\\?\\c:\\a.psd"})
        EXPECT_TRUE(IsPsdPath(psd)) << testing::PrintToString(psd);
    for (const wchar_t* other :
         {L"", L"psd", L"a.psd ", L"a.psd.", L"a.psdx", L"a.psd\\b", L"a.psd/b", L"a.psb"})
        EXPECT_FALSE(IsPsdPath(other)) << testing::PrintToString(other);
    EXPECT_TRUE(IsPsdPath(std::wstring(260000, L'x') + L".psd"));
}

TEST(TextCase, FoldsWithoutLocaleAndOnlyWhereItLeadsBack) {
    EXPECT_EQ(L"az09_[@`{äж中\u0130", LowerText(L"AZ09_[@`{ÄЖ中\u0130"));
    EXPECT_EQ(L"AZ09_[@`{ÄЖ中\u0131", UpperText(L"az09_[@`{äж中\u0131"));
    EXPECT_EQ(L"\U0001F3AC", LowerText(L"\U0001F3AC"));
    EXPECT_TRUE(EqualNoCase(L"ÄbC", L"äBc"));
    EXPECT_FALSE(EqualNoCase(L"ab", L"abc"));
    EXPECT_FALSE(EqualNoCase(L"K", L"\u212A")) << "the Kelvin sign is no letter of a file name's K";
    EXPECT_TRUE(EqualNoCase(L"", L""));
}

} // namespace
