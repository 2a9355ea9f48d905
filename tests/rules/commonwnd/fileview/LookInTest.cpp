// The look-in combo box's model: depths of rows, items of the shell by path and name.
#include "fileview/LookInFolders.h"
#include "fileview/ShellItems.h"

#include <gtest/gtest.h>

#include <shlobj.h>
#include <shlwapi.h>

namespace filedialog_rules {

using namespace _qv_commonwnd;

using Ints = std::vector<int>;

TEST(LookInDepths, AreTheRanksOfWhereTextsBegin) {
    EXPECT_EQ(Ints{}, DepthsOf({}));
    EXPECT_EQ(Ints{0}, DepthsOf({20}));
    EXPECT_EQ((Ints{0, 1, 2, 3, 1}), DepthsOf({20, 28, 36, 44, 28}));
    EXPECT_EQ((Ints{0, 0, 0}), DepthsOf({7, 7, 7}));
    EXPECT_EQ((Ints{1, 0}), DepthsOf({0, -5}));
}

class ShellItem : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr))); }
    void TearDown() override { ::CoUninitialize(); }

    static OwnedItemId Of(const wchar_t* path) { return OwnedItemId(::ILCreateFromPathW(path)); }
    static CString PathOf(const OwnedItemId& id) {
        wchar_t path[MAX_PATH] = L"";
        return id && ::SHGetPathFromIDListW(id.get(), path) ? CString(path) : CString();
    }
    static int StepsOf(const OwnedItemId& id) {
        int steps = 0;
        while (AncestorAt(id.get(), steps + 1))
            ++steps;
        return steps;
    }
};

TEST_F(ShellItem, AncestorsLieOnTheWay) {
    const OwnedItemId system = Of(L"C:\\windows\\system32");
    ASSERT_TRUE(system);
    const int steps = StepsOf(system);
    EXPECT_EQ(CString(L"C:\\windows\\system32").MakeLower(),
              PathOf(AncestorAt(system.get(), steps)).MakeLower());
    EXPECT_EQ(CString(L"C:\\windows").MakeLower(), PathOf(AncestorAt(system.get(), steps - 1)).MakeLower());
    EXPECT_TRUE(SameItem(AncestorAt(system.get(), 0).get(), DesktopItem().get()));
    EXPECT_FALSE(AncestorAt(system.get(), steps + 1));
    EXPECT_FALSE(AncestorAt(nullptr, 0));
}

TEST_F(ShellItem, NamesAreThoseThatAreShown) {
    const OwnedItemId windows = Of(L"C:\\windows");
    EXPECT_TRUE(HasName(windows.get(), L"windows"));
    EXPECT_FALSE(HasName(windows.get(), L"window"));
    EXPECT_FALSE(HasName(nullptr, L"windows"));
}

TEST_F(ShellItem, ChildrenAreFoundByName) {
    const OwnedItemId root = Of(L"C:\\");
    const OwnedItemId found = ChildNamed(root.get(), L"windows", SHCONTF_FOLDERS);
    EXPECT_TRUE(SameItem(found.get(), Of(L"C:\\windows").get()));
    EXPECT_FALSE(ChildNamed(root.get(), L"no folder of this name", SHCONTF_FOLDERS));
    EXPECT_FALSE(ChildNamed(nullptr, L"windows", SHCONTF_FOLDERS));
}

TEST_F(ShellItem, SamenessIsThatOfEveryByte) {
    EXPECT_TRUE(SameItem(nullptr, nullptr));
    EXPECT_FALSE(SameItem(DesktopItem().get(), nullptr));
    EXPECT_TRUE(SameItem(Of(L"C:\\windows").get(), Of(L"C:\\windows").get()));
    EXPECT_FALSE(SameItem(Of(L"C:\\windows").get(), Of(L"C:\\").get()));
}

TEST_F(ShellItem, EveryItemHasAnIcon) {
    CSmallIcons icons;
    const HICON folder = icons.Of(Of(L"C:\\windows").get());
    EXPECT_TRUE(folder);
    EXPECT_EQ(folder, icons.Of(Of(L"C:\\windows\\system32").get())) << "copied once";
    EXPECT_EQ(folder, icons.Of(nullptr)) << "a plain folder's";
    const HICON desktop = icons.Of(DesktopItem().get());
    EXPECT_TRUE(desktop);
    EXPECT_NE(folder, desktop);
}

TEST(LookInFolders, WithoutWindowsThereIsNothing) {
    CLookInFolders folders;
    EXPECT_EQ(0, folders.Depth(0));
    EXPECT_EQ(nullptr, folders.Icon(0));
    EXPECT_EQ(nullptr, folders.Icon(-1));
    EXPECT_TRUE(folders.Text(0).IsEmpty());
    EXPECT_TRUE(folders.Text(-1).IsEmpty());
}

} // namespace filedialog_rules
