// The directory tree that the library makes for a host, and its remembered folder.
#include "PathsFixture.h"

#include "LeakGuard.h"
#include "Picture.h"

#include <atomic>

namespace paths_test {

using qvtest::Picture;

namespace {

const CRect kPlace(20, 30, 320, 280);

class HostTree : public Paths {
  protected:
    void SetUp() override {
        Paths::SetUp();
        Open();
    }
    void TearDown() override {
        Close();
        Paths::TearDown();
    }

    void Open() {
        m_tree = dynamic_cast<CQVComboDTBox*>(QV_GetDirTree(&m_host, kPlace));
        ASSERT_NE(nullptr, m_tree);
        ASSERT_TRUE(::IsWindow(m_tree->m_hWnd));
    }
    void Close() {
        QV_ReleaseDirTree(m_tree);
        m_tree = nullptr;
    }
    void Reopen() {
        Close();
        Open();
    }

    bool AtTheDesktop() const { return m_tree->GetSelectedItem() == m_tree->GetRootItem(); }

    TestHost m_host;
    CQVComboDTBox* m_tree = nullptr;
};

TEST_F(HostTree, IsATreeControlInTheGivenPlace) {
    constexpr DWORD kStyle = 0x50800023;
    constexpr DWORD kScrollStyles =
        WS_VSCROLL | WS_HSCROLL | WS_CLIPSIBLINGS; // as the rows and the skinned bars ask
    EXPECT_EQ(kStyle, m_tree->GetStyle() & ~kScrollStyles);
    EXPECT_EQ(0, m_tree->GetDlgCtrlID());
    EXPECT_EQ(m_host.m_hWnd, ::GetParent(m_tree->m_hWnd));
    CRect place;
    m_tree->GetWindowRect(&place);
    m_host.ScreenToClient(&place);
    EXPECT_EQ(kPlace, place);
    EXPECT_EQ(QV_GetSysFont(QVFONT_UI)->GetSafeHandle(), m_tree->GetFont()->GetSafeHandle());
}

TEST_F(HostTree, StartsAtTheDesktop) {
    ASSERT_NE(nullptr, m_tree->GetRootItem());
    EXPECT_TRUE(AtTheDesktop());
    EXPECT_EQ(nullptr, m_tree->GetNextSiblingItem(m_tree->GetRootItem()));
    EXPECT_TRUE(TestHost::PumpUntil([&] { return m_tree->GetChildItem(m_tree->GetRootItem()) != nullptr; }));
}

TEST_F(HostTree, ShowsFoldersOnly) {
    const TempFolder folder;
    folder.folder(L"sub");
    folder.file(L"file.txt", "x");
    ASSERT_TRUE(m_tree->SetPathName(folder.path().c_str()));
    const HTREEITEM item = m_tree->GetSelectedItem();
    ASSERT_TRUE(TestHost::PumpUntil([&] { return m_tree->GetChildItem(item) != nullptr; }));
    EXPECT_STREQ(L"sub", m_tree->GetItemText(m_tree->GetChildItem(item)));
    EXPECT_EQ(nullptr, m_tree->GetNextSiblingItem(m_tree->GetChildItem(item)));
}

TEST_F(HostTree, RemembersAFolderUnderAnyKey) {
    const TempFolder folder;
    const std::wstring path = folder.folder(L"媒体\\day 2");
    for (const wchar_t* key : {L"FilePath", L"ImportFolder", L"目录 1", L"a\\b%c"}) {
        ASSERT_TRUE(m_tree->SetPathName(path.c_str()));
        QV_InitFilePath(m_tree, key, TRUE);
        EXPECT_STREQ(path.c_str(), Stored(key));
        Reopen();
        EXPECT_TRUE(AtTheDesktop());
        QV_InitFilePath(m_tree, key, FALSE);
        EXPECT_STREQ(path.c_str(), m_tree->GetPathName());
        EXPECT_STREQ(L"day 2", m_tree->GetItemText(m_tree->GetSelectedItem()));
        Reopen();
    }
}

TEST_F(HostTree, RestoresWithoutChangingTheStore) {
    Store(L"Key", L"C:\\nowhere at all");
    QV_InitFilePath(m_tree, L"Key", FALSE);
    EXPECT_STREQ(L"C:\\nowhere at all", Stored(L"Key"));
}

TEST_F(HostTree, NothingSelectedIsSavedAsEmpty) {
    Store(L"Key", L"C:\\before");
    m_tree->SelectItem(nullptr);
    ASSERT_EQ(nullptr, m_tree->GetSelectedItem());
    QV_InitFilePath(m_tree, L"Key", TRUE);
    EXPECT_STREQ(L"", Stored(L"Key"));
}

TEST_F(HostTree, WithNothingStoredStaysAtTheDesktop) {
    QV_InitFilePath(m_tree, L"Key", FALSE);
    EXPECT_TRUE(AtTheDesktop());
    Store(L"Key", L"");
    QV_InitFilePath(m_tree, L"Key", FALSE);
    EXPECT_TRUE(AtTheDesktop());
}

TEST_F(HostTree, EmptyKeyDoesNothing) {
    const TempFolder folder;
    QV_InitFilePath(m_tree, L"", FALSE);
    EXPECT_TRUE(AtTheDesktop());
    ASSERT_TRUE(m_tree->SetPathName(folder.path().c_str()));
    Store(L"Key", L"kept");
    QV_InitFilePath(m_tree, L"", TRUE);
    EXPECT_STREQ(L"kept", Stored(L"Key"));
}

TEST_F(HostTree, StoredNonsenseIsHarmless) {
    std::vector<CString> values = BrokenValues();
    values.push_back(L"Q:\\drive\\that is gone");
    for (const CString& value : values) {
        Store(L"Key", value);
        QV_InitFilePath(m_tree, L"Key", FALSE);
        EXPECT_TRUE(AtTheDesktop());
    }
}

TEST_F(HostTree, OneTreeRestoresWhatAnotherSaved) {
    const TempFolder folder;
    CWnd* const other = QV_GetDirTree(&m_host, CRect(0, 0, 50, 50));
    auto* const second = static_cast<CQVDirTreeCtrl*>(other);
    ASSERT_TRUE(m_tree->SetPathName(folder.path().c_str()));
    QV_InitFilePath(m_tree, L"Key", TRUE);
    QV_InitFilePath(second, L"Key", FALSE);
    EXPECT_STREQ(folder.path().c_str(), second->GetPathName());
    QV_ReleaseDirTree(other);
    EXPECT_TRUE(::IsWindow(m_tree->m_hWnd));
}

TEST_F(HostTree, ReleaseDestroysTheWindow) {
    const HWND window = m_tree->m_hWnd;
    Close();
    EXPECT_FALSE(::IsWindow(window));
}

TEST(HostTreeWithout, NullIsHarmless) {
    QV_ReleaseDirTree(nullptr);
    QV_InitFilePath(nullptr, L"Key", TRUE);
    QV_InitFilePath(nullptr, L"Key", FALSE);
}

TEST_F(HostTree, WithoutAWindowIsHarmless) {
    CWnd windowless;
    for (CWnd* parent : {static_cast<CWnd*>(nullptr), &windowless}) {
        auto* tree = dynamic_cast<CQVDirTreeCtrl*>(QV_GetDirTree(parent, kPlace));
        ASSERT_NE(nullptr, tree);
        EXPECT_EQ(nullptr, tree->m_hWnd);
        Store(L"Key", L"C:\\");
        QV_InitFilePath(tree, L"Key", FALSE);
        QV_InitFilePath(tree, L"Key", TRUE);
        EXPECT_STREQ(L"", Stored(L"Key"));
        QV_ReleaseDirTree(tree);
    }
}

TEST_F(HostTree, MayOutliveItsParent) {
    auto* host = new TestHost;
    CWnd* const tree = QV_GetDirTree(host, kPlace);
    delete host;
    EXPECT_EQ(nullptr, tree->m_hWnd);
    QV_ReleaseDirTree(tree);
}

// Blocks the listing of folders whose path ends with \dead until it is let go.
class DeadFolder {
  public:
    DeadFolder() {
        s_release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        s_running = s_entered = 0;
        QV_SetFolderLister(&List);
    }
    ~DeadFolder() {
        SetEvent(s_release);
        TestHost::PumpUntil([] { return s_running == 0; });
        QV_SetFolderLister(nullptr);
        CloseHandle(s_release);
    }
    static bool Entered() { return s_entered > 0; }
    static bool Blocking() { return s_running > 0; }

  private:
    static QVListerAnswer CALLBACK List(LPCWSTR folder, QVAddFolderEntry, void*) {
        if (!std::wstring(folder).ends_with(L"\\dead"))
            return QVLISTER_ASK_SYSTEM;
        ++s_running;
        ++s_entered;
        WaitForSingleObject(s_release, 60000);
        --s_running;
        return QVLISTER_LISTED;
    }
    static inline HANDLE s_release = nullptr;
    static inline std::atomic<int> s_running = 0;
    static inline std::atomic<int> s_entered = 0;
};

TEST_F(HostTree, OpensAndRestoresWhileAFolderHangs) {
    const TempFolder folder;
    folder.folder(L"dead\\below");
    folder.folder(L"living");
    Close();
    {
        const DeadFolder block;
        Store(L"Key", folder.path(L"dead\\below").c_str());
        Store(L"Living", folder.path(L"living").c_str());
        Open();
        QV_InitFilePath(m_tree, L"Key", FALSE); // comes back although the folder never answers
        EXPECT_TRUE(DeadFolder::Entered());
        EXPECT_TRUE(DeadFolder::Blocking());
        QV_InitFilePath(m_tree, L"Living", FALSE);
        EXPECT_STREQ(folder.path(L"living").c_str(), m_tree->GetPathName());
        Reopen(); // and may be closed and opened meanwhile
        EXPECT_TRUE(AtTheDesktop());
        EXPECT_TRUE(DeadFolder::Blocking());
    }
}

TEST_F(HostTree, IsSelectedInByMouseAndSaved) {
    const TempFolder folder;
    folder.folder(L"sub\\deep");
    ASSERT_TRUE(m_tree->SetPathName(folder.path().c_str()));
    const HTREEITEM item = m_tree->GetSelectedItem();
    ASSERT_TRUE(TestHost::PumpUntil([&] { return m_tree->GetChildItem(item) != nullptr; }));
    const HTREEITEM sub = m_tree->GetChildItem(item);
    m_tree->EnsureVisible(sub);
    TestHost::Settle();
    CRect text;
    m_tree->GetItemRect(sub, text, TRUE);
    ModalScript script;
    script.step("choose", [&](Driver& user) {
        user.clickAt(*m_tree, text.CenterPoint());
        user.waitFor("the folder", [&] { return m_tree->GetSelectedItem() == sub; });
        user.onUi([&] { m_host.End(); });
    });
    script.run([&] { m_host.Loop(); });
    QV_InitFilePath(m_tree, L"Key", TRUE);
    EXPECT_STREQ(folder.path(L"sub").c_str(), Stored(L"Key"));
}

TEST_F(HostTree, IsSkinned) {
    const TempFolder folder;
    for (int i = 0; i < 30; ++i) // enough for a scroll bar
        folder.folder(L"A rather long name of a folder, number " + std::to_wstring(i));
    ASSERT_TRUE(m_tree->SetPathName(folder.path().c_str()));
    const HTREEITEM item = m_tree->GetSelectedItem();
    ASSERT_TRUE(TestHost::PumpUntil([&] { return m_tree->GetChildItem(item) != nullptr; }));
    m_tree->SelectItem(m_tree->GetRootItem()); // a selection's text may be white
    for (const wchar_t* skin : {L"dark", L"light"}) {
        ASSERT_TRUE(QV_SetSkinPath(SkinFolder(skin)));
        TestHost::Settle();
        const Picture picture = Picture::ofWindow(m_tree->m_hWnd);
        picture.save(qvtest::picturePath(std::wstring(L"hosttree-") + skin));
        EXPECT_EQ(QV_GetSysColor(QVCLR_TREE_FRAME), picture.at(0, 0));
        EXPECT_EQ(QV_GetSysColor(QVCLR_TREE), picture.at(2, 2));
        EXPECT_EQ(0, picture.count(::GetSysColor(COLOR_BTNFACE)));
    }
}

// The platform's shell loses a block each time it names the path of a desktop item, which opening the tree asks for.
TEST_F(HostTree, LeavesNothingBehind) {
    const TempFolder folder;
    folder.folder(L"a\\b");
    Store(L"Key", folder.path(L"a").c_str());
    qvtest::expectNoLeak(200,
                         [&] {
                             CWnd* const wnd = QV_GetDirTree(&m_host, kPlace);
                             auto* const tree = static_cast<CQVDirTreeCtrl*>(wnd);
                             QV_InitFilePath(tree, L"Key", FALSE);
                             QV_InitFilePath(tree, L"Key", TRUE);
                             QV_ReleaseDirTree(wnd);
                             TestHost::Settle();
                         },
                         {.heapBlocks = 1});
}

} // namespace
} // namespace paths_test
