// The remembered folders in the profile.
#include "module/StoredPaths.h"

#include <QVCommonClass.h>

#include <gtest/gtest.h>

using namespace _qv_commonwnd;
using namespace _qv_commonclass;

namespace {

class StoredPaths : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QV_SetProfileRoot(L"Software\\QVCommonWndTest"));
        ASSERT_TRUE(QV_WriteProfileString(L"PathSet", nullptr, nullptr));
    }
    void TearDown() override { QV_WriteProfileString(L"PathSet", nullptr, nullptr); }
};

TEST_F(StoredPaths, StandInTheSectionUnderTheirKeys) {
    StorePath(kResPathKey, L"D:\\Res");
    StorePath(kMediaPathKey, L"E:\\Media");
    StorePath(kFilePathKey, L"F:\\");
    EXPECT_STREQ(L"D:\\Res", QV_GetProfileString(L"PathSet", L"ResPath", L""));
    EXPECT_STREQ(L"E:\\Media", QV_GetProfileString(L"PathSet", L"MediaPath", L""));
    EXPECT_STREQ(L"F:\\", QV_GetProfileString(L"PathSet", L"FilePath", L""));
    QV_WriteProfileString(L"PathSet", L"ResPath", L"G:\\other\\");
    EXPECT_STREQ(L"G:\\other\\", StoredPath(kResPathKey));
}

TEST_F(StoredPaths, AreEmptyAtTheStart) {
    for (const wchar_t* key : {kResPathKey, kMediaPathKey, kFilePathKey})
        EXPECT_TRUE(StoredPath(key).IsEmpty());
}

TEST_F(StoredPaths, ComeBackAsTheyWereStored) {
    const CString values[] = {
        L"C:\\",          L"D:\\Res\\",          L"  D:\\blank  ", L"\\\\server\\share\\媒体",
        L"D:\\\x1\r\n\t", CString(L'x', 32000),  L"D:\\\xD83C",    L"",
        L"%TEMP%\\x",     CString(L'\\', 32000),
    };
    for (const CString& value : values) {
        StorePath(kResPathKey, value);
        EXPECT_EQ(value, StoredPath(kResPathKey));
    }
}

TEST_F(StoredPaths, EmptyPathIsStored) {
    StorePath(kFilePathKey, nullptr);
    EXPECT_STREQ(L"", QV_GetProfileString(L"PathSet", L"FilePath", L"none"));
}

TEST_F(StoredPaths, NoKeyTouchesNothing) {
    StorePath(kResPathKey, L"D:\\Res");
    StorePath(nullptr, L"D:\\x");
    StorePath(L"", L"D:\\x");
    EXPECT_STREQ(L"D:\\Res", StoredPath(kResPathKey));
    EXPECT_TRUE(StoredPath(nullptr).IsEmpty());
    EXPECT_TRUE(StoredPath(L"").IsEmpty());
}

// The file dialog's folder has the same names but for letter case, and is another one.
TEST_F(StoredPaths, NeverMeetTheItemOfTheSameName) {
    CZ5Regkey item;
    ASSERT_TRUE(item.OpenItem(L"pathset", TRUE));
    ASSERT_TRUE(item.SetValue(L"filepath", L"C:\\dialog"));
    StorePath(kFilePathKey, L"D:\\list");
    CString folder;
    EXPECT_TRUE(item.GetValue(L"filepath", folder));
    EXPECT_STREQ(L"C:\\dialog", folder);
    EXPECT_STREQ(L"D:\\list", StoredPath(kFilePathKey));
    ASSERT_TRUE(item.SetValue(L"filepath", nullptr));
    EXPECT_STREQ(L"D:\\list", StoredPath(kFilePathKey));
    ASSERT_TRUE(item.SetValue(L"ResPath", L"C:\\none"));
    EXPECT_TRUE(StoredPath(kResPathKey).IsEmpty());
    QV_WriteProfileString(L"PathSet", nullptr, nullptr);
    EXPECT_TRUE(item.GetValue(L"ResPath", folder));
    EXPECT_TRUE(item.SetValue(L"ResPath", nullptr));
}

} // namespace
