// The names a save dialog answers: path, extension, name, title.
#include "support/FileNameRules.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

using Patterns = std::vector<std::wstring>;

const std::wstring kLong(300, L'n');

struct PathRow {
    const char* name;
    Patterns patterns;
    std::size_t filterIndex;
    std::wstring path;
    std::wstring checked;
};

class CheckPath : public testing::TestWithParam<PathRow> {};

TEST_P(CheckPath, AnswersPath) {
    const PathRow& row = GetParam();
    EXPECT_EQ(row.checked, CheckedPathName(row.path, {row.patterns, row.filterIndex}));
}

const Patterns kAviAll = {L"*.avi", L"*.*"};

INSTANTIATE_TEST_SUITE_P(
    Table, CheckPath,
    testing::Values(
        PathRow{"empty", kAviAll, 1, L"", L""},
        PathRow{"withoutExtension", kAviAll, 1, L"D:\\Video\\Clip", L"d:\\video\\clip.avi"},
        PathRow{"withExtensionInCapitals", kAviAll, 1, L"D:\\v\\clip.AVI", L"d:\\v\\clip.avi"},
        PathRow{"otherExtension", kAviAll, 1, L"D:\\v\\a.MOV", L"d:\\v\\a.mov.avi"},
        PathRow{"partOfTheExtension", {L"*.mp4"}, 1, L"c:\\a.mp", L"c:\\a.mp"},
        PathRow{"allFilesWithoutExtension", kAviAll, 2, L"c:\\a", L"c:\\a.*"},
        PathRow{"allFilesWithExtension", kAviAll, 2, L"c:\\a.avi", L"c:\\a.avi.*"},
        PathRow{"noFilterChosen", kAviAll, 0, L"C:\\A", L"c:\\a"},
        PathRow{"filterBeyondTheList", kAviAll, 3, L"C:\\A", L"c:\\a"},
        PathRow{"noPatterns", {}, 1, L"C:\\A", L"c:\\a"},
        PathRow{"secondAlternativeCounts", {L"*.avi;*.WMV"}, 1, L"c:\\a.wmv", L"c:\\a.wmv"},
        PathRow{"firstAlternativeIsAppended", {L"*.AVI;*.wmv"}, 1, L"c:\\a.x", L"c:\\a.x.avi"},
        PathRow{"emptyFirstAlternative", {L";*.avi"}, 1, L"c:\\a", L"c:\\a"},
        PathRow{"patternWithoutDot", {L"**"}, 1, L"c:\\a", L"c:\\a"},
        PathRow{"patternOfOneCharacter", {L"*"}, 1, L"c:\\a", L"c:\\a"},
        PathRow{"patternOfDotAlone", {L"."}, 1, L"c:\\a", L"c:\\a"},
        PathRow{"patternWithTwoDots", {L"*.tar.gz"}, 1, L"c:\\a", L"c:\\a.tar.gz"},
        PathRow{"dotInFolderOnly", kAviAll, 1, L"c:\\a.avi\\b", L"c:\\a.avi\\b.avi"},
        PathRow{"dotInFolderWithSlash", kAviAll, 1, L"c:/a.avi/b", L"c:/a.avi/b.avi"},
        PathRow{"trailingDot", kAviAll, 1, L"c:\\a.", L"c:\\a."},
        PathRow{"trailingSpace", kAviAll, 1, L"c:\\a.avi ", L"c:\\a.avi .avi"},
        PathRow{"nameOfDotAndExtension", kAviAll, 1, L"c:\\.avi", L"c:\\.avi"},
        PathRow{"folderAtTheEnd", kAviAll, 1, L"c:\\", L"c:\\.avi"},
        PathRow{"uncPath", kAviAll, 1, L"\\\\Server\\Share\\A", L"\\\\server\\share\\a.avi"},
        PathRow{"longPathPrefix", kAviAll, 1, L"\\\\?\\C:\\V\\A.Avi", L"\\\\?\\c:\\v\\a.avi"},
        PathRow{"dotInPrefixOnly", kAviAll, 1, L"\\\\.\\C:\\A", L"\\\\.\\c:\\a.avi"},
        PathRow{"surrogatePair", kAviAll, 1, L"c:\\\U0001F3AC", L"c:\\\U0001F3AC.avi"},
        PathRow{"chinese", kAviAll, 1, L"C:\\视频\\剪辑", L"c:\\视频\\剪辑.avi"},
        PathRow{"lettersOutsideLatin", kAviAll, 1, L"C:\\ÄÉ\\ΣЖ.avi", L"c:\\äé\\σж.avi"},
        // Its small letter's capital is the plain I: in lower case the path would name another folder.
        PathRow{"dottedCapitalStays", kAviAll, 1, L"C:\\\u0130X.avi", L"c:\\\u0130x.avi"},
        PathRow{"longName", kAviAll, 1, L"c:\\" + kLong, L"c:\\" + kLong + L".avi"},
        PathRow{"longNameWithExtension", kAviAll, 1, L"c:\\" + kLong + L".avi", L"c:\\" + kLong + L".avi"},
        PathRow{"longFolder", kAviAll, 1, L"c:\\" + kLong + L"\\a.avi", L"c:\\" + kLong + L"\\a.avi"},
        PathRow{"longExtension", {L"*." + kLong}, 1, L"c:\\a." + kLong, L"c:\\a." + kLong}),
    [](const auto& row) { return row.param.name; });

TEST(CheckPath, TakesHugePaths) {
    const std::wstring huge(260000, L'X');
    EXPECT_EQ(std::wstring(260000, L'x') + L".avi", CheckedPathName(huge, {kAviAll, 1}));
}

struct ExtensionRow {
    const char* name;
    std::wstring pattern;
    std::optional<std::wstring> extension;
};

class Extension : public testing::TestWithParam<ExtensionRow> {};

TEST_P(Extension, IsTakenFromThePattern) {
    const Patterns patterns = {GetParam().pattern};
    EXPECT_EQ(GetParam().extension, PatternExtension({patterns, 1}));
}

INSTANTIATE_TEST_SUITE_P(
    Table, Extension,
    testing::Values(ExtensionRow{"one", L"*.avi", L"AVI"}, ExtensionRow{"firstOfTwo", L"*.avi;*.wmv", L"AVI"},
                    ExtensionRow{"all", L"*.*", L"*"}, ExtensionRow{"twoDots", L"*.tar.gz", L"TAR.GZ"},
                    ExtensionRow{"dotAtTheEnd", L"*.", L""}, ExtensionRow{"noDot", L"avi", std::nullopt},
                    ExtensionRow{"dotInSecondOnly", L"avi;*.wmv", std::nullopt},
                    ExtensionRow{"emptyFirst", L";*.avi", std::nullopt},
                    ExtensionRow{"oneCharacter", L"*", std::nullopt},
                    ExtensionRow{"empty", L"", std::nullopt}, ExtensionRow{"outsideLatin", L"*.äж", L"ÄЖ"}),
    [](const auto& row) { return row.param.name; });

TEST(Extension, NeedsAChosenPattern) {
    EXPECT_EQ(std::nullopt, PatternExtension({kAviAll, 0}));
    EXPECT_EQ(std::nullopt, PatternExtension({kAviAll, 3}));
}

struct NameRow {
    const char* caseName;
    std::wstring name;
    std::wstring extension;
    std::wstring whole;
    std::wstring title;
};

class Name : public testing::TestWithParam<NameRow> {};

TEST_P(Name, GetsExtensionAndTitle) {
    const std::wstring whole = NameWithExtension(GetParam().name, GetParam().extension);
    EXPECT_EQ(GetParam().whole, whole);
    EXPECT_EQ(GetParam().title, TitleOfName(whole));
}

INSTANTIATE_TEST_SUITE_P(
    Table, Name,
    testing::Values(NameRow{"withoutDot", L"Clip", L"AVI", L"Clip.AVI", L"Clip"},
                    NameRow{"sameExtension", L"clip.AVI", L"AVI", L"clip.AVI", L"clip"},
                    NameRow{"sameInOtherCase", L"clip.aVi", L"AVI", L"clip.aVi", L"clip"},
                    NameRow{"otherExtension", L"a.mp", L"MP4", L"a.mp.MP4", L"a.mp"},
                    NameRow{"lastDotCounts", L"a.avi.b", L"AVI", L"a.avi.b.AVI", L"a.avi.b"},
                    NameRow{"trailingDot", L"a.", L"AVI", L"a..AVI", L"a."},
                    NameRow{"trailingSpace", L"a.avi ", L"AVI", L"a.avi .AVI", L"a.avi "},
                    NameRow{"star", L"a", L"*", L"a.*", L"a"}, NameRow{"empty", L"", L"AVI", L".AVI", L""},
                    NameRow{"noExtensionAtAll", L"a", L"", L"a.", L"a"},
                    NameRow{"trailingDotAndNoExtension", L"a.", L"", L"a.", L"a"},
                    NameRow{"surrogatePair", L"\U0001F3AC", L"AVI", L"\U0001F3AC.AVI", L"\U0001F3AC"}),
    [](const auto& row) { return row.param.caseName; });

TEST(Title, OfANameWithoutDotIsTheName) {
    EXPECT_EQ(L"clip", TitleOfName(L"clip"));
    EXPECT_EQ(L"", TitleOfName(L""));
    EXPECT_EQ(L"", TitleOfName(L".avi"));
}

} // namespace
