// The directory tree and list over real folders.
#include "DirTreeFixture.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "Picture.h"
#include "TempFolder.h"

using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::Picture;
using qvtest::TempFolder;

namespace {

TEST_F(DirTree, RootIsTheDesktopWithTheComputer) {
    const HTREEITEM root = m_tree.GetRootItem();
    ASSERT_NE(nullptr, root);
    EXPECT_FALSE(m_tree.GetItemText(root).IsEmpty());
    EXPECT_TRUE(expanded(root));
    EXPECT_FALSE(m_tree.GetPathName().IsEmpty()); // the desktop's own folder
    EXPECT_FALSE(childrenOf(root).empty());
}

TEST_F(DirTree, GoesToAPathAndTellsIt) {
    const TempFolder folder;
    folder.folder(L"Alpha\\Beta");
    const std::wstring path = folder.path(L"Alpha\\Beta");
    ASSERT_TRUE(m_tree.SetPathName(path.c_str()));
    EXPECT_STREQ(path.c_str(), m_tree.GetPathName());
    EXPECT_STREQ(L"Beta", m_tree.GetItemText(m_tree.GetSelectedItem()));
    const HTREEITEM before = m_tree.GetSelectedItem();
    EXPECT_TRUE(m_tree.SetPathName((path + L"\\").c_str()));
    std::wstring upper = path;
    CharUpperW(upper.data());
    EXPECT_TRUE(m_tree.SetPathName(upper.c_str()));
    EXPECT_EQ(before, m_tree.GetSelectedItem());
    Picture::ofWindow(m_tree.m_hWnd).save(qvtest::picturePath(L"dirtree"));
}

TEST_F(DirTree, PathsThatAreNotThereChangeNothing) {
    const TempFolder folder;
    folder.file(L"file.txt", "x");
    ASSERT_TRUE(m_tree.SetPathName(folder.path().c_str()));
    const CString before = m_tree.GetPathName();
    for (const std::wstring& path :
         {folder.path(L"nowhere"), folder.path(L"file.txt"), std::wstring(L""), std::wstring(L"relative"),
          std::wstring(L"\\"), std::wstring(L"Q:\\no\\drive"), folder.path(L".."), std::wstring(5000, L'x'),
          L"C:\\" + std::wstring(40000, L'y'), std::wstring(L"\\\\"), std::wstring(L"::{}")}) {
        EXPECT_FALSE(m_tree.SetPathName(path.c_str())) << testing::PrintToString(path.substr(0, 60));
        EXPECT_EQ(before, m_tree.GetPathName());
    }
    EXPECT_FALSE(m_tree.SetPathName(nullptr));
}

TEST_F(DirTree, ExpandsLazilySortedWithoutFiles) {
    const TempFolder folder;
    for (const wchar_t* name : {L"b10", L"b9", L"Caesar", L"anton", L"\u4E2D\u6587"})
        folder.folder(std::wstring(L"top\\") + name);
    folder.file(L"top\\a file.txt", "x");
    ASSERT_TRUE(m_tree.SetPathName(folder.path().c_str()));
    const HTREEITEM item = m_tree.GetSelectedItem();
    ASSERT_TRUE(TestHost::PumpUntil([&] { return m_tree.GetChildItem(item) != nullptr; }));
    const HTREEITEM top = m_tree.GetChildItem(item);
    EXPECT_EQ(nullptr, m_tree.GetChildItem(top)); // not listed before it is opened
    m_tree.Expand(top, TVE_EXPAND);
    ASSERT_TRUE(TestHost::PumpUntil([&] { return expanded(top); }));
    const auto names = childrenOf(top);
    ASSERT_EQ(5u, names.size());
    EXPECT_EQ(L"anton", names[0]);
    EXPECT_EQ(L"Caesar", names[3]);
}

TEST_F(DirTree, EmptyFolderLosesItsExpander) {
    const TempFolder folder;
    ASSERT_TRUE(m_tree.SetPathName(folder.path().c_str()));
    const HTREEITEM item = m_tree.GetSelectedItem();
    EXPECT_TRUE(TestHost::PumpUntil([&] { return !m_tree.ItemHasChildren(item); }));
}

TEST_F(DirTree, ListsAgainByF5) {
    const TempFolder folder;
    folder.folder(L"one");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    folder.folder(L"two");
    m_tree.SendMessage(WM_KEYDOWN, VK_F5);
    EXPECT_TRUE(TestHost::PumpUntil([&] { return childrenOf(item).size() == 2; }));
}

TEST_F(DirTree, IsOpenedByMouse) {
    const TempFolder folder;
    folder.folder(L"sub\\deep");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    const HTREEITEM sub = m_tree.GetChildItem(item);
    m_tree.EnsureVisible(sub);
    CRect text;
    m_tree.GetItemRect(sub, text, TRUE);
    ModalScript script;
    script.step("double click", [&](Driver& user) {
        user.doubleClickAt(m_tree, {text.left + 4, text.CenterPoint().y});
        user.waitFor("opened", [&] { return expanded(sub); });
        user.press(VK_RIGHT);
        user.waitFor("deep", [&] { return m_tree.GetItemText(m_tree.GetSelectedItem()) == L"deep"; });
        user.onUi([&] { m_host.End(); });
    });
    script.run([&] { m_host.Loop(); });
    EXPECT_STREQ(folder.path(L"sub\\deep").c_str(), m_tree.GetPathName());
}

TEST_F(DirTree, FilesToo) {
    const TempFolder folder;
    folder.folder(L"folder");
    folder.file(L"file.txt", "x");
    m_tree.SetTreeCtrl(0);
    ASSERT_TRUE(m_tree.SetDesktopFolder());
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    EXPECT_EQ((std::vector<std::wstring>{L"folder", L"file.txt"}), childrenOf(item));
    const HTREEITEM file = m_tree.GetNextSiblingItem(m_tree.GetChildItem(item));
    EXPECT_FALSE(m_tree.ItemHasChildren(file));
    m_tree.SelectItem(file);
    EXPECT_STREQ(folder.path(L"file.txt").c_str(), m_tree.GetPathName());
}

TEST_F(DirTree, WithoutWindowNothingHappens) {
    CQVDirTreeCtrl tree;
    EXPECT_FALSE(tree.SetDesktopFolder());
    EXPECT_FALSE(tree.SetPathName(L"C:\\"));
    EXPECT_TRUE(tree.GetPathName().IsEmpty());
    tree.SetTreeCtrl(99);
    CQVDirListCtrl list;
    CString path = L"before";
    EXPECT_FALSE(list.SetPathName(L"C:\\"));
    EXPECT_FALSE(list.GetPathName(path, -1));
    EXPECT_TRUE(path.IsEmpty());
}

TEST_F(DirTree, LeavesNothingBehind) {
    const TempFolder folder;
    folder.folder(L"a\\b");
    const auto use = [&] {
        CQVComboDTBox tree;
        tree.Create(kTreeStyle, CRect(20, 20, 200, 200), &m_host, 0);
        tree.SetTreeCtrl(1);
        tree.SetDesktopFolder();
        tree.SetPathName(folder.path(L"a").c_str());
        TestHost::PumpUntil([&] { return tree.GetChildItem(tree.GetSelectedItem()) != nullptr; });
        tree.SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        tree.DestroyWindow();
        CQVDirListCtrl list;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 200, 200), &m_host, 1);
        list.SetPathName(folder.path().c_str());
        list.DestroyWindow();
    };
    for (int i = 0; i < 5; ++i)
        use();
    const qvtest::LeakGuard guard;
    for (int i = 0; i < 30; ++i)
        use();
    guard.expectNothingLeft();
}

class DirList : public SkinFixture {
  protected:
    void SetUp() override {
        SkinFixture::SetUp();
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS,
                                  CRect(10, 10, 390, 290), &m_host, 1));
        m_list.SetFont(QV_GetSysFont(QVFONT_UI));
    }
    void TearDown() override {
        m_list.DestroyWindow();
        SkinFixture::TearDown();
    }

    CString pathAt(int item) const {
        CString path;
        m_list.GetPathName(path, item);
        return path;
    }

    TestHost m_host;
    CQVDirListCtrl m_list;
};

TEST_F(DirList, ShowsAFolder) {
    const TempFolder folder;
    folder.file(L"b.txt", std::string(2000, 'x'));
    folder.file(L"a.txt", "x");
    folder.folder(L"zeta");
    ASSERT_TRUE(m_list.SetPathName((folder.path() + L"\\").c_str()));
    ASSERT_EQ(3, m_list.GetItemCount());
    EXPECT_STREQ(folder.path().c_str(), pathAt(-1));
    EXPECT_STREQ(folder.path(L"zeta").c_str(), pathAt(0));
    EXPECT_STREQ(folder.path(L"a.txt").c_str(), pathAt(1));
    EXPECT_STREQ(folder.path(L"b.txt").c_str(), pathAt(2));
    EXPECT_TRUE(m_list.GetItemText(0, 1).IsEmpty());
    EXPECT_FALSE(m_list.GetItemText(2, 1).IsEmpty());
    EXPECT_FALSE(m_list.GetItemText(2, 2).IsEmpty());
    CString path = L"before";
    EXPECT_FALSE(m_list.GetPathName(path, 3));
    EXPECT_TRUE(path.IsEmpty());
    EXPECT_FALSE(m_list.GetPathName(path, -2));
    TestHost::Settle();
    Picture::ofWindow(m_list.m_hWnd).save(qvtest::picturePath(L"dirlist"));
}

TEST_F(DirList, FoldersThatAreNotThereChangeNothing) {
    const TempFolder folder;
    folder.file(L"a.txt", "x");
    EXPECT_TRUE(pathAt(-1).IsEmpty());
    ASSERT_TRUE(m_list.SetPathName(folder.path().c_str()));
    for (const std::wstring& path : {folder.path(L"nowhere"), folder.path(L"a.txt"), std::wstring(L"")})
        EXPECT_FALSE(m_list.SetPathName(path.c_str()));
    EXPECT_FALSE(m_list.SetPathName(nullptr));
    EXPECT_EQ(1, m_list.GetItemCount());
    EXPECT_STREQ(folder.path().c_str(), pathAt(-1));
}

TEST_F(DirList, IsWalkedByMouseAndKeyboard) {
    const TempFolder folder;
    folder.file(L"sub\\inner.txt", "x");
    ASSERT_TRUE(m_list.SetPathName(folder.path().c_str()));
    TestHost::Settle();
    CRect text;
    m_list.GetItemRect(0, text, LVIR_LABEL);
    ModalScript script;
    script.step("into and out", [&](Driver& user) {
        user.doubleClickAt(m_list, {text.left + 5, text.CenterPoint().y});
        user.waitFor("inside", [&] { return pathAt(-1) == folder.path(L"sub").c_str(); });
        user.press(VK_BACK);
        user.waitFor("outside", [&] { return pathAt(-1) == folder.path().c_str(); });
        user.onUi([&] { m_host.End(); });
    });
    script.run([&] { m_host.Loop(); });
}

// A host that reads the row when it hears of the activation.
class ReadingHost : public TestHost {
  public:
    explicit ReadingHost(CQVDirListCtrl& list) : m_list(list) {}
    CString read;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = TestHost::WindowProc(message, wParam, lParam);
        if (message == WM_NOTIFY &&
            reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(LVN_ITEMACTIVATE))
            m_list.GetPathName(read, reinterpret_cast<NMITEMACTIVATE*>(lParam)->iItem);
        return result;
    }

  private:
    CQVDirListCtrl& m_list;
};

TEST_F(DirList, HostReadsTheRowThatWasActivated) {
    const TempFolder folder;
    folder.file(L"sub\\inner.txt", "x");
    CQVDirListCtrl list;
    ReadingHost host(list);
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(10, 10, 390, 290), &host, 1));
    ASSERT_TRUE(list.SetPathName(folder.path().c_str()));
    list.SetItemState(0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    NMITEMACTIVATE activate = {};
    activate.hdr = {list, 1, static_cast<UINT>(LVN_ITEMACTIVATE)};
    host.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&activate));
    EXPECT_STREQ(folder.path(L"sub").c_str(), host.read);
    CString shown;
    EXPECT_TRUE(TestHost::PumpUntil(
        [&] { return list.GetPathName(shown, -1) && shown == folder.path(L"sub").c_str(); }));
    list.DestroyWindow();
}

} // namespace
