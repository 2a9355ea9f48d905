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

// What a lister answers for folders whose path ends with \\closed.
class ClosedFolder {
  public:
    explicit ClosedFolder(QVListerAnswer answer) {
        s_answer = answer;
        QV_SetFolderLister(&List);
    }
    ~ClosedFolder() { QV_SetFolderLister(nullptr); }

  private:
    static QVListerAnswer CALLBACK List(LPCWSTR folder, QVAddFolderEntry, void*) {
        return std::wstring(folder).ends_with(L"\\closed") ? s_answer.load() : QVLISTER_ASK_SYSTEM;
    }
    static inline std::atomic<QVListerAnswer> s_answer = QVLISTER_ASK_SYSTEM;
};

TEST_F(DirTree, FolderBelowOneThatCannotBeListedIsSeenAndOpensLater) {
    const TempFolder folder;
    folder.folder(L"closed\\inner\\deep");
    const std::wstring inner = folder.path(L"closed\\inner");
    HTREEITEM parent = nullptr;
    {
        const ClosedFolder closed(QVLISTER_DENIED);
        ASSERT_TRUE(m_tree.SetPathName(inner.c_str()));
        EXPECT_STREQ(inner.c_str(), m_tree.GetPathName());
        parent = m_tree.GetParentItem(m_tree.GetSelectedItem());
        EXPECT_TRUE(expanded(parent));
        CRect place;
        EXPECT_TRUE(
            m_tree.GetItemRect(m_tree.GetSelectedItem(), place, FALSE)); // FALSE for one that is not shown
        TestHost::PumpUntil([&] { return expanded(m_tree.GetSelectedItem()); });
        EXPECT_EQ(std::vector<std::wstring>{L"deep"}, childrenOf(m_tree.GetSelectedItem()));
        // Shut and opened again, as a user does.
        m_tree.SelectItem(parent);
        m_tree.SendMessage(WM_KEYDOWN, VK_LEFT);
        EXPECT_FALSE(expanded(parent));
        m_tree.SendMessage(WM_KEYDOWN, VK_RIGHT);
        EXPECT_TRUE(expanded(parent));
        TestHost::Settle();
    }
    folder.folder(L"closed\\other");
    m_tree.SendMessage(WM_KEYDOWN, VK_F5);
    EXPECT_TRUE(TestHost::PumpUntil([&] { return childrenOf(parent).size() == 2; }));
}

TEST_F(DirTree, FolderThatHasGoneSinceItWasListedIsNotThere) {
    const TempFolder folder;
    folder.folder(L"gone");
    folder.folder(L"stays");
    ASSERT_NE(nullptr, open(folder));
    const CString before = m_tree.GetPathName();
    ASSERT_TRUE(RemoveDirectoryW(folder.path(L"gone").c_str()));
    EXPECT_FALSE(m_tree.SetPathName(folder.path(L"gone").c_str()));
    EXPECT_EQ(before, m_tree.GetPathName());
    EXPECT_TRUE(m_tree.SetPathName(folder.path(L"stays").c_str()));
}

TEST_F(DirTree, FolderHasItsOwnTimeBelowASlowParent) {
    const TempFolder folder;
    folder.folder(L"dead\\a\\b");
    ASSERT_NE(nullptr, open(folder));
    const DeadFolder block;
    EXPECT_TRUE(m_tree.SetPathName(folder.path(L"dead\\a\\b").c_str()));
    EXPECT_STREQ(folder.path(L"dead\\a\\b").c_str(), m_tree.GetPathName());
}

TEST_F(DirTree, ListedAgainDuringTheFirstOpeningItStillOpens) {
    const TempFolder folder;
    folder.folder(L"dead");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    const HTREEITEM dead = m_tree.GetChildItem(item);
    {
        const DeadFolder block;
        m_tree.SelectItem(dead);
        m_tree.Expand(dead, TVE_EXPAND);
        m_tree.SendMessage(WM_KEYDOWN, VK_F5);
        m_tree.SendMessage(WM_KEYDOWN, VK_F5);
        TestHost::Settle();
        EXPECT_FALSE(expanded(dead));
    }
    EXPECT_TRUE(TestHost::PumpUntil([&] { return expanded(dead); }));
}

TEST_F(DirTree, ListedAgainTwiceItStaysOpen) {
    const TempFolder folder;
    folder.folder(L"dead");
    folder.folder(L"dead\\inner");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    const HTREEITEM dead = m_tree.GetChildItem(item);
    m_tree.SelectItem(dead);
    m_tree.Expand(dead, TVE_EXPAND);
    ASSERT_TRUE(TestHost::PumpUntil([&] { return expanded(dead); }));
    {
        const DeadFolder block;
        m_tree.SendMessage(WM_KEYDOWN, VK_F5);
        TestHost::Settle();
        m_tree.SendMessage(WM_KEYDOWN, VK_F5);
    }
    EXPECT_TRUE(TestHost::PumpUntil([&] { return expanded(dead); }));
}

// What the threads of tree and list touch a drive with.
std::atomic<DWORD> g_errorMode = 0;
QVListerAnswer CALLBACK NoteErrorMode(LPCWSTR folder, QVAddFolderEntry, void*) {
    if (std::wstring(folder).ends_with(L"\\noted"))
        g_errorMode = GetThreadErrorMode();
    return QVLISTER_ASK_SYSTEM;
}

TEST_F(DirTree, ThreadsShowNoBoxOfTheSystem) {
    const TempFolder folder;
    folder.folder(L"noted");
    const UINT former = SetErrorMode(0);
    QV_SetFolderLister(&NoteErrorMode);
    g_errorMode = 0;
    EXPECT_TRUE(m_tree.SetPathName(folder.path(L"noted").c_str()));
    TestHost::PumpUntil([] { return g_errorMode != 0; });
    EXPECT_TRUE(g_errorMode & SEM_FAILCRITICALERRORS);
    g_errorMode = 0;
    CQVDirListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 200, 200), &m_host, 1);
    EXPECT_TRUE(list.SetPathName(folder.path(L"noted").c_str()));
    EXPECT_TRUE(g_errorMode & SEM_FAILCRITICALERRORS);
    QV_SetFolderLister(nullptr);
    SetErrorMode(former);
    list.DestroyWindow();
}

// A folder \\endless gives entries until nobody wants more.
class EndlessFolder {
  public:
    EndlessFolder() {
        s_running = 0;
        QV_SetFolderLister(&List);
    }
    ~EndlessFolder() {
        QV_SetFolderLister(nullptr);
        s_stop = true;
        while (s_running)
            Sleep(5);
        s_stop = false;
    }
    static bool running() { return s_running > 0; }

  private:
    static QVListerAnswer CALLBACK List(LPCWSTR folder, QVAddFolderEntry add, void* context) {
        if (!std::wstring(folder).ends_with(L"\\endless"))
            return QVLISTER_ASK_SYSTEM;
        ++s_running;
        for (int i = 0; !s_stop && add(context, (L"folder " + std::to_wstring(i)).c_str(), TRUE); ++i)
            Sleep(1);
        --s_running;
        return QVLISTER_LISTED;
    }
    static inline std::atomic<bool> s_stop = false;
    static inline std::atomic<int> s_running = 0;
};

TEST_F(DirTree, ListingThatNobodyWaitsForEnds) {
    const TempFolder folder;
    folder.folder(L"endless");
    const HTREEITEM item = open(folder);
    ASSERT_NE(nullptr, item);
    const EndlessFolder endless;
    m_tree.Expand(m_tree.GetChildItem(item), TVE_EXPAND);
    ASSERT_TRUE(TestHost::PumpUntil([] { return EndlessFolder::running(); }));
    m_tree.DeleteItem(m_tree.GetChildItem(item));
    EXPECT_TRUE(TestHost::PumpUntil([] { return !EndlessFolder::running(); }));
}

// Deletes itself with its window, as framework windows may; by then nothing of it is at work any more.
class OwnTree : public CQVDirTreeCtrl {
  public:
    explicit OwnTree(bool& quiet) : m_quiet(quiet) {}

  protected:
    void PostNcDestroy() override {
        m_quiet = TestHost::PumpUntil([] { return !EndlessFolder::running(); });
        delete this;
    }

  private:
    bool& m_quiet;
};

TEST_F(DirTree, MayDeleteItselfWithItsWindow) {
    const TempFolder folder;
    folder.folder(L"endless");
    const EndlessFolder endless;
    bool quiet = false;
    auto* const tree = new OwnTree(quiet);
    ASSERT_TRUE(tree->Create(kTreeStyle, CRect(20, 20, 200, 200), &m_host, 7));
    tree->SetTreeCtrl(1);
    ASSERT_TRUE(tree->SetDesktopFolder());
    ASSERT_TRUE(tree->SetPathName(folder.path(L"endless").c_str()));
    ASSERT_TRUE(TestHost::PumpUntil([] { return EndlessFolder::running(); }));
    tree->DestroyWindow();
    EXPECT_TRUE(quiet);
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

TEST_F(SlowTree, RowsOfAListingThatBrokeOffAreShownAgain) {
    SlowFolder slow;
    openHalf();
    breakOff(slow);
    m_tree.SelectItem(m_item);
    m_tree.SendMessage(WM_KEYDOWN, VK_LEFT);
    ASSERT_FALSE(expanded(m_item));
    m_tree.SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_TRUE(expanded(m_item));
    ASSERT_TRUE(TestHost::PumpUntil([] { return !SlowFolder::running(); }));
    TestHost::Settle();
    EXPECT_TRUE(expanded(m_item));
    EXPECT_EQ(SlowFolder::kCount / 2u, childrenOf(m_item).size());
}

TEST_F(SlowTree, FolderPutThereDuringTheListingIsNotListedTwice) {
    m_folder.folder(L"slow\\folder 7");
    SlowFolder slow;
    openHalf();
    ASSERT_TRUE(m_tree.SetPathName(m_folder.path(L"slow\\folder 7").c_str()));
    const HTREEITEM chosen = m_tree.GetSelectedItem();
    EXPECT_STREQ(L"folder 7", m_tree.GetItemText(chosen));
    slow.goOn();
    ASSERT_TRUE(waitForAll());
    TestHost::Settle();
    EXPECT_EQ(all(), childrenOf(m_item));
    EXPECT_EQ(chosen, m_tree.GetSelectedItem());
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

TEST_F(DirTree, FollowsASkinWithAnotherFont) {
    const TempFolder skin;
    skin.file(L"skin.txt", "font 13 ui latin 21 400 \"Arial\"\nfont 13 ui cjk 21 400 \"Arial\"\n");
    CQVDirListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 200, 200), &m_host, 1);
    list.SetFont(QV_GetSysFont(QVFONT_UI));
    const HFONT former = *QV_GetSysFont(QVFONT_UI);
    QV_SetSkinPath(skin.path().c_str());
    const HFONT font = *QV_GetSysFont(QVFONT_UI);
    ASSERT_NE(former, font);
    for (const HWND wnd : {m_tree.m_hWnd, list.m_hWnd})
        EXPECT_EQ(font, reinterpret_cast<HFONT>(SendMessageW(wnd, WM_GETFONT, 0, 0)));
    QV_SetSkinPath(nullptr);
    list.DestroyWindow();
}

// A list of the same slow folder.
class SlowList : public SkinFixture {
  protected:
    void SetUp() override {
        SkinFixture::SetUp();
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(10, 10, 390, 290), &m_host, 1));
    }
    void TearDown() override {
        m_list.DestroyWindow();
        SkinFixture::TearDown();
    }

    TestHost m_host;
    CQVDirListCtrl m_list;
    const TempFolder m_folder;
};

TEST_F(SlowList, ShowsWhatThereIsAndIsFilledInOrder) {
    SlowFolder slow;
    const ULONGLONG begin = GetTickCount64();
    ASSERT_TRUE(m_list.SetPathName(m_folder.path(L"slow").c_str()));
    EXPECT_LT(GetTickCount64() - begin, 1500u);
    EXPECT_GE(m_list.GetItemCount(), 500);
    EXPECT_TRUE(SlowFolder::running());
    slow.goOn();
    ASSERT_TRUE(TestHost::PumpUntil([&] { return m_list.GetItemCount() == SlowFolder::kCount; }));
    for (int i = 0; i < SlowFolder::kCount; ++i)
        ASSERT_STREQ((L"folder " + std::to_wstring(i)).c_str(), m_list.GetItemText(i, 0));
}

TEST_F(SlowList, OtherFolderTakesThePlaceOfOneThatIsStillRead) {
    m_folder.file(L"other\\a.txt", "x");
    SlowFolder slow;
    ASSERT_TRUE(m_list.SetPathName(m_folder.path(L"slow").c_str()));
    ASSERT_TRUE(m_list.SetPathName(m_folder.path(L"other").c_str()));
    slow.goOn();
    ASSERT_TRUE(TestHost::PumpUntil([] { return !SlowFolder::running(); }));
    TestHost::Settle();
    EXPECT_EQ(1, m_list.GetItemCount());
}

} // namespace
