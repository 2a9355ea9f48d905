// Where shortcuts lead.
#include "ShellFixture.h"

#include "folders/ShellShortcut.h"

namespace folderfilter_test {

using namespace _qv_commonwnd;

class Shortcuts : public Shell {};

TEST_F(Shortcuts, LeadToTheirTarget) {
    const std::wstring folder = m_folder.folder(L"目标 target");
    const std::wstring path = Shortcut(L"a.lnk", folder);
    EXPECT_STREQ(folder.c_str(), ResolveShortcut(path.c_str()));
    EXPECT_STREQ(folder.c_str(), ShortcutTargetOrSelf(path.c_str()));
}

TEST_F(Shortcuts, InCapitalsLeadNowhere) {
    const std::wstring folder = m_folder.folder(L"target");
    for (const wchar_t* name : {L"a.LNK", L"b.Lnk", L"c.lNK"}) {
        const std::wstring path = Shortcut(name, folder);
        EXPECT_TRUE(ResolveShortcut(path.c_str()).IsEmpty());
        EXPECT_TRUE(ShortcutTargetOrSelf(path.c_str()).IsEmpty());
    }
}

TEST_F(Shortcuts, OtherPathsStandForThemselves) {
    for (const wchar_t* path : {L"C:\\", L"C:\\a", L"C:\\a.lnk\\b", L"C:\\a.lnk.txt", L"C:\\a.lnk ", L"",
                                L"lnk", L"C:\\a.lnkx", L"\\\\server\\share"}) {
        EXPECT_STREQ(path, ShortcutTargetOrSelf(path));
        EXPECT_TRUE(ResolveShortcut(path).IsEmpty()) << testing::PrintToString(path);
    }
}

TEST_F(Shortcuts, BrokenOnesAreHarmless) {
    constexpr int kMostUnits = MAX_PATH - 1;
    for (const Item& item : MakeItems())
        EXPECT_LE(ResolveShortcut(item.path.c_str()).GetLength(), kMostUnits) << item.what;
    for (const wchar_t* name : {L"random.lnk", L"short.lnk", L"empty.lnk", L"to nothing.lnk"})
        EXPECT_TRUE(ResolveShortcut(m_folder.path(name).c_str()).IsEmpty()) << testing::PrintToString(name);
    const CString itself = m_folder.path(L"to itself.lnk").c_str();
    EXPECT_STREQ(itself, ResolveShortcut(itself));
    EXPECT_TRUE(ResolveShortcut(L"C:\\nowhere.lnk").IsEmpty());
    EXPECT_TRUE(ResolveShortcut(m_folder.folder(L"a folder.lnk").c_str()).IsEmpty());
    EXPECT_TRUE(ResolveShortcut((L"C:\\" + std::wstring(40000, L'x') + L".lnk").c_str()).IsEmpty());
}

TEST_F(Shortcuts, FoundFoldersAreNoFilesAndNoRoots) {
    EXPECT_TRUE(IsFoundFolder(m_folder.path().c_str()));
    EXPECT_FALSE(IsFoundFolder(m_folder.file(L"a.txt", "x").c_str()));
    EXPECT_FALSE(IsFoundFolder(L"C:\\"));
    EXPECT_FALSE(IsFoundFolder(L""));
    EXPECT_FALSE(IsFoundFolder(L"?"));
    EXPECT_FALSE(IsFoundFolder(L"C:\\win*"));
    EXPECT_FALSE(IsFoundFolder(m_folder.path(L"nowhere").c_str()));
}

} // namespace folderfilter_test
