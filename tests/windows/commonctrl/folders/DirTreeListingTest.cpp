// The directory tree over folders that are large, slow, dead or fail.
#include "DirTreeFixture.h"

#include "TempFolder.h"

#include <algorithm>
#include <atomic>

using qvtest::TempFolder;

namespace {

// Blocks the listing of folders whose path ends with \dead until it is let go.
class DeadFolder {
  public:
    DeadFolder() {
        s_release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        s_running = 0;
        QV_SetFolderLister(&List);
    }
    ~DeadFolder() {
        SetEvent(s_release);
        while (s_running)
            Sleep(5);
        QV_SetFolderLister(nullptr);
        CloseHandle(s_release);
    }

  private:
    static QVListerAnswer CALLBACK List(LPCWSTR folder, QVAddFolderEntry add, void* context) {
        if (!std::wstring(folder).ends_with(L"\\dead"))
            return QVLISTER_ASK_SYSTEM;
        ++s_running;
        WaitForSingleObject(s_release, 30000);
        add(context, L"late", TRUE);
        --s_running;
        return QVLISTER_LISTED;
    }
    static inline HANDLE s_release = nullptr;
    static inline std::atomic<int> s_running = 0;
};

TEST_F(DirTree, DeadFolderBlocksNothing) {
    const TempFolder folder;
    folder.folder(L"dead");
    folder.folder(L"living\\inner");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    HTREEITEM dead = m_tree.GetChildItem(item);
    ASSERT_STREQ(L"dead", m_tree.GetItemText(dead));
    const HTREEITEM living = m_tree.GetNextSiblingItem(dead);
    {
        const DeadFolder block;
        const ULONGLONG begin = GetTickCount64();
        m_tree.Expand(dead, TVE_EXPAND);
        EXPECT_LT(GetTickCount64() - begin, 300u);
        m_tree.Expand(living, TVE_EXPAND);
        EXPECT_TRUE(TestHost::PumpUntil([&] { return expanded(living); })); // the others go on
        EXPECT_FALSE(expanded(dead));
        const ULONGLONG select = GetTickCount64();
        EXPECT_FALSE(m_tree.SetPathName(folder.path(L"dead\\x").c_str())); // bounded
        EXPECT_LT(GetTickCount64() - select, 4000u);
    }
    EXPECT_TRUE(TestHost::PumpUntil([&] { return expanded(dead); })); // the late answer is shown
}

TEST_F(DirTree, WindowMayDieWhileAFolderHangs) {
    const TempFolder folder;
    folder.folder(L"dead");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    const DeadFolder block;
    m_tree.Expand(m_tree.GetChildItem(item), TVE_EXPAND);
    m_tree.DestroyWindow();
    TestHost::Settle();
}

TEST_F(DirTree, ItemsMayBeDeletedWhileAFolderHangs) {
    const TempFolder folder;
    folder.folder(L"dead");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    {
        const DeadFolder block;
        m_tree.Expand(m_tree.GetChildItem(item), TVE_EXPAND);
        m_tree.SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    }
    TestHost::Settle();
    EXPECT_EQ(0u, m_tree.GetCount());
    EXPECT_TRUE(m_tree.GetPathName().IsEmpty());
    EXPECT_FALSE(m_tree.SetPathName(folder.path().c_str())); // no root
    EXPECT_TRUE(m_tree.SetDesktopFolder());
    EXPECT_TRUE(m_tree.SetPathName(folder.path().c_str()));
}

std::vector<std::wstring> numberedFolders(int from, int end) {
    std::vector<std::wstring> names;
    for (int i = from; i < end; ++i)
        names.push_back(L"folder " + std::to_wstring(i));
    return names;
}

constexpr int kManyFolders = 10000;

// Lists a folder \many of so many folders, which need not be on the disk.
QVListerAnswer CALLBACK ListMany(LPCWSTR folder, QVAddFolderEntry add, void* context) {
    if (!std::wstring(folder).ends_with(L"\\many"))
        return QVLISTER_ASK_SYSTEM;
    for (int i = kManyFolders - 1; i >= 0; --i)
        add(context, (L"folder " + std::to_wstring(i)).c_str(), TRUE);
    return QVLISTER_LISTED;
}

TEST_F(DirTree, TenThousandFoldersAreAllThereInOrder) {
    const TempFolder folder;
    const std::wstring many = folder.folder(L"many");
    QV_SetFolderLister(&ListMany);
    const bool found = m_tree.SetPathName(many.c_str());
    const HTREEITEM item = m_tree.GetSelectedItem();
    const bool opened = TestHost::PumpUntil([&] { return childrenOf(item).size() == kManyFolders; });
    QV_SetFolderLister(nullptr);
    ASSERT_TRUE(found && opened);
    EXPECT_EQ(numberedFolders(0, kManyFolders), childrenOf(item));
    m_tree.Expand(item, TVE_COLLAPSE);
    m_tree.Expand(item, TVE_EXPAND);
    EXPECT_TRUE(expanded(item));
    const std::wstring last = many + L"\\folder 9999";
    ASSERT_TRUE(m_tree.SetPathName(last.c_str()));
    EXPECT_STREQ(last.c_str(), m_tree.GetPathName());
}

// A folder \\slow whose listing gives the upper half of its folders, from the last to the first, then waits until it is
// told to go on with the lower half, or to fail.
class SlowFolder {
  public:
    static constexpr int kCount = 2000;

    SlowFolder() {
        s_goOn = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        s_fails = false;
        s_listings = s_running = 0;
        QV_SetFolderLister(&List);
    }
    ~SlowFolder() {
        goOn();
        TestHost::PumpUntil([] { return s_running == 0; });
        QV_SetFolderLister(nullptr);
        CloseHandle(s_goOn);
    }
    void goOn() { SetEvent(s_goOn); }
    void fail() {
        s_fails = true;
        SetEvent(s_goOn);
    }
    void workAgain() { s_fails = false; }
    static int listings() { return s_listings; }
    static bool running() { return s_running > 0; }

  private:
    static QVListerAnswer CALLBACK List(LPCWSTR folder, QVAddFolderEntry add, void* context) {
        if (!std::wstring(folder).ends_with(L"\\slow"))
            return QVLISTER_ASK_SYSTEM;
        ++s_listings;
        ++s_running;
        Give(kCount / 2, kCount, add, context);
        WaitForSingleObject(s_goOn, 30000);
        const bool fails = s_fails;
        if (!fails)
            Give(0, kCount / 2, add, context);
        --s_running;
        return fails ? QVLISTER_FAILED : QVLISTER_LISTED;
    }
    static void Give(int from, int end, QVAddFolderEntry add, void* context) {
        for (int i = end - 1; i >= from; --i)
            add(context, (L"folder " + std::to_wstring(i)).c_str(), TRUE);
    }
    static inline HANDLE s_goOn = nullptr;
    static inline std::atomic<bool> s_fails = false;
    static inline std::atomic<int> s_listings = 0;
    static inline std::atomic<int> s_running = 0;
};

class SlowTree : public DirTree {
  protected:
    void SetUp() override {
        DirTree::SetUp();
        m_folder.folder(L"slow");
        const HTREEITEM top = open(m_folder);
        ASSERT_NE(nullptr, top);
        m_item = m_tree.GetChildItem(top);
        ASSERT_STREQ(L"slow", m_tree.GetItemText(m_item));
    }

    // Opens the folder and waits for the rows that are shown before its end.
    void openHalf() {
        m_tree.Expand(m_item, TVE_EXPAND);
        ASSERT_TRUE(TestHost::PumpUntil([&] { return expanded(m_item); }));
    }
    void breakOff(SlowFolder& slow) {
        slow.fail();
        ASSERT_TRUE(TestHost::PumpUntil(
            [&] { return !SlowFolder::running() && childrenOf(m_item).size() == SlowFolder::kCount / 2; }));
        TestHost::Settle();
    }
    // As a user does: the control announces only the first opening by a call. Again, when the end of the listing before
    // is still under way.
    void openByKey() {
        const int before = SlowFolder::listings();
        m_tree.SelectItem(m_item);
        ASSERT_TRUE(TestHost::PumpUntil([&] {
            m_tree.SendMessage(WM_KEYDOWN, VK_LEFT);
            m_tree.SendMessage(WM_KEYDOWN, VK_RIGHT);
            return SlowFolder::listings() > before;
        }));
    }
    bool waitForAll() {
        return TestHost::PumpUntil([&] { return childrenOf(m_item).size() == SlowFolder::kCount; });
    }
    static std::vector<std::wstring> all() { return numberedFolders(0, SlowFolder::kCount); }

    const TempFolder m_folder;
    HTREEITEM m_item = nullptr;
};

TEST_F(SlowTree, ShowsWhatThereIsBeforeTheEndInOrder) {
    SlowFolder slow;
    openHalf();
    EXPECT_TRUE(SlowFolder::running());
    const auto early = childrenOf(m_item);
    EXPECT_GE(early.size(), 500u);
    EXPECT_LE(early.size(), SlowFolder::kCount / 2u);
    const int first = SlowFolder::kCount - static_cast<int>(early.size());
    EXPECT_EQ(numberedFolders(first, SlowFolder::kCount), early);
    slow.goOn();
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(all(), childrenOf(m_item));
    EXPECT_EQ(1, SlowFolder::listings());
}

TEST_F(SlowTree, KeepsTheSelectionMadeBeforeTheEnd) {
    SlowFolder slow;
    openHalf();
    const HTREEITEM chosen = m_tree.GetChildItem(m_item);
    const CString name = m_tree.GetItemText(chosen);
    m_tree.SelectItem(chosen);
    slow.goOn();
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(chosen, m_tree.GetSelectedItem());
    EXPECT_EQ(name, m_tree.GetItemText(chosen));
    EXPECT_STREQ(m_folder.path(L"slow\\" + std::wstring(name)).c_str(), m_tree.GetPathName());
}

TEST_F(SlowTree, StaysShutWhenItWasShutBeforeTheEnd) {
    SlowFolder slow;
    openHalf();
    m_tree.Expand(m_item, TVE_COLLAPSE);
    slow.goOn();
    ASSERT_TRUE(waitForAll());
    EXPECT_FALSE(expanded(m_item));
    m_tree.Expand(m_item, TVE_EXPAND);
    EXPECT_TRUE(expanded(m_item));
    EXPECT_EQ(1, SlowFolder::listings());
}

TEST_F(SlowTree, ListedAgainBeforeTheEndHasEveryNameOnce) {
    SlowFolder slow;
    openHalf();
    m_tree.SelectItem(m_item);
    m_tree.SendMessage(WM_KEYDOWN, VK_F5);
    slow.goOn();
    ASSERT_TRUE(waitForAll());
    EXPECT_TRUE(TestHost::PumpUntil([&] { return !SlowFolder::running() && SlowFolder::listings() == 2; }));
    TestHost::Settle();
    EXPECT_EQ(all(), childrenOf(m_item));
}

TEST_F(SlowTree, ListingThatBrokeOffIsTakenUpWithEveryNameOnce) {
    SlowFolder slow;
    openHalf();
    breakOff(slow);
    EXPECT_EQ(numberedFolders(SlowFolder::kCount / 2, SlowFolder::kCount), childrenOf(m_item));
    EXPECT_TRUE(m_tree.ItemHasChildren(m_item));
    slow.workAgain();
    openByKey();
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(all(), childrenOf(m_item));
    EXPECT_EQ(2, SlowFolder::listings());
}

// A path that is selected while its parent cannot be listed is put there without it.
TEST_F(SlowTree, FolderPutThereByASelectionIsNotListedTwice) {
    m_folder.folder(L"slow\\folder 7");
    const std::wstring path = m_folder.path(L"slow\\folder 7");
    SlowFolder slow;
    openHalf();
    breakOff(slow);
    ASSERT_TRUE(m_tree.SetPathName(path.c_str()));
    const HTREEITEM chosen = m_tree.GetSelectedItem();
    EXPECT_STREQ(L"folder 7", m_tree.GetItemText(chosen));
    slow.workAgain();
    openByKey();
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(all(), childrenOf(m_item));
    ASSERT_TRUE(m_tree.SetPathName(path.c_str()));
    EXPECT_EQ(chosen, m_tree.GetSelectedItem());
}

} // namespace
