// The judgement of the two typed folders and the form in which they are stored.
#include "folders/ResPathRules.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

struct Judged {
    PathState resource;
    PathState media;
    const wchar_t* message;
    PathField restore;
};

TEST(ResPathRules, Judgement) {
    const Judged rows[] = {
        {PathState::There, PathState::There, L"", PathField::None},
        {PathState::Missing, PathState::There, L"资源路径无效!", PathField::Resource},
        {PathState::There, PathState::Missing, L"\n文件路径无效!", PathField::Media},
        {PathState::Missing, PathState::Missing, L"资源路径无效!\n文件路径无效!", PathField::Media},
    };
    for (const Judged& row : rows) {
        const PathVerdict verdict = JudgePaths(row.resource, row.media);
        EXPECT_STREQ(row.message, verdict.message);
        EXPECT_EQ(row.restore, verdict.restore);
    }
}

TEST(ResPathRules, TrailingBackslashes) {
    const struct {
        const wchar_t* typed;
        const wchar_t* stored;
    } rows[] = {
        {L"D:\\Res\\\\", L"D:\\Res"},
        {L"D:\\Res\\", L"D:\\Res"},
        {L"D:\\Res", L"D:\\Res"},
        {L"C:\\", L"C:"},
        {L"C:", L"C:"},
        {L"\\\\server\\share\\", L"\\\\server\\share"},
        {L"D:\\a\\b c\\", L"D:\\a\\b c"},
        {L"D:/Res/", L"D:/Res/"},
        {L"\\\\", L""},
        {L"", L""},
        {L"D:\\媒体\\", L"D:\\媒体"},
        {L"D:\\Res\\ ", L"D:\\Res\\ "},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(row.stored, WithoutTrailingBackslashes(row.typed)) << testing::PrintToString(row.typed);
}

TEST(ResPathRules, ManyBackslashes) {
    EXPECT_STREQ(L"D:", WithoutTrailingBackslashes(L"D:" + CString(L'\\', 32000)));
}

} // namespace
