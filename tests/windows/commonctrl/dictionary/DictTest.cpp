#include "SkinFixture.h"

#include "LeakGuard.h"
#include "TempFolder.h"

#include <LWSupportAPI.h>

using namespace _qv_commonctrl;

namespace {

class Dict : public SkinFixture {};

TEST_F(Dict, TextsOfTheCurrentLanguage) {
    EXPECT_STREQ(L"\u53D6\u6D88", QV_LoadSysString(L"IDS_COMMON_CANCEL"));
    EXPECT_STREQ(L"zh-CN", QV_GetLanguage());
    ASSERT_TRUE(QV_SetLanguage(L"en-US"));
    EXPECT_STREQ(L"Cancel", QV_LoadSysString(L"IDS_COMMON_CANCEL"));
    EXPECT_STREQ(L"Cancel", LWLoadString(L"IDS_COMMON_CANCEL"));
}

TEST_F(Dict, MissingTextIsTheKey) {
    EXPECT_STREQ(L"IDS_NO_SUCH_TEXT", QV_LoadSysString(L"IDS_NO_SUCH_TEXT"));
    EXPECT_STREQ(L"ids_common_cancel", QV_LoadSysString(L"ids_common_cancel"));
    EXPECT_TRUE(QV_LoadSysString(nullptr).IsEmpty());
    EXPECT_TRUE(QV_LoadSysString(L"").IsEmpty());
    EXPECT_TRUE(LWLoadString(nullptr).IsEmpty());
}

TEST_F(Dict, FallsBackToEnglish) {
    const qvtest::TempFolder folder;
    folder.file(L"en-US.txt", "A = English A\nB = English B\nC = English C\n");
    folder.file(L"zh-CN.txt", "A = \xE7\x94\xB2\nB =\n");
    ASSERT_TRUE(QV_SetLanguagePath(folder.path().c_str()));
    EXPECT_STREQ(L"\u7532", QV_LoadSysString(L"A"));
    EXPECT_STREQ(L"English B", QV_LoadSysString(L"B")); // an empty text is a missing one
    EXPECT_STREQ(L"English C", QV_LoadSysString(L"C"));
    EXPECT_STREQ(L"D", QV_LoadSysString(L"D"));
}

TEST_F(Dict, RefusesLanguagesThatAreNotThere) {
    for (const wchar_t* name : {L"xx-XX", L"..\\zh-CN", L"zh-CN.txt", L"zh CN", L"C:\\zh-CN", L"*"})
        EXPECT_FALSE(QV_SetLanguage(name)) << testing::PrintToString(name);
    EXPECT_FALSE(QV_SetLanguage(std::wstring(5000, L'x').c_str()));
    EXPECT_STREQ(L"zh-CN", QV_GetLanguage());
    EXPECT_STREQ(L"\u53D6\u6D88", QV_LoadSysString(L"IDS_COMMON_CANCEL"));
}

TEST_F(Dict, EmptyNameIsTheUsersLanguage) {
    ASSERT_TRUE(QV_SetLanguage(L"de-DE"));
    EXPECT_TRUE(QV_SetLanguage(nullptr));
    EXPECT_STRNE(L"de-DE", QV_GetLanguage());
    EXPECT_FALSE(QV_LoadSysString(L"IDS_COMMON_CANCEL").IsEmpty());
}

TEST_F(Dict, FolderWithoutFilesShowsKeys) {
    const qvtest::TempFolder folder;
    EXPECT_FALSE(QV_SetLanguagePath(folder.path(L"nowhere").c_str()));
    EXPECT_STREQ(L"\u53D6\u6D88", QV_LoadSysString(L"IDS_COMMON_CANCEL"));
}

TEST_F(Dict, BrokenFileIsHarmless) {
    const qvtest::TempFolder folder;
    std::string garbage(100000, '\xFF');
    folder.file(L"zh-CN.txt", "A = 1\n" + garbage + "\nB = 2\n");
    ASSERT_TRUE(QV_SetLanguagePath(folder.path().c_str()));
    EXPECT_STREQ(L"1", QV_LoadSysString(L"A"));
    EXPECT_STREQ(L"2", QV_LoadSysString(L"B"));
}

const wchar_t* upper(const wchar_t*) {
    return L"X";
}

TEST_F(Dict, CallBackIsKeptAndReturned) {
    EXPECT_EQ(nullptr, QV_SetDictCallBack(&upper));
    EXPECT_EQ(&upper, QV_GetDictCallBack());
    EXPECT_EQ(&upper, QV_SetDictCallBack(nullptr));
    EXPECT_EQ(nullptr, QV_GetDictCallBack());
}

TEST_F(Dict, SwitchingLeavesNothingBehind) {
    qvtest::expectNoLeak(50, [] {
        QV_SetLanguage(L"en-US");
        QV_LoadSysString(L"IDS_COMMON_OK");
        QV_SetLanguage(L"zh-CN");
        QV_LoadSysString(L"IDS_COMMON_OK");
    });
}

} // namespace
