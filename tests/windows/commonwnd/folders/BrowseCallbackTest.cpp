// What the chooser does with each message of the system's dialog. The dialog is made by the test in the form that it
// has where the tree lies in a host window.
#include "FakeBrowseDialog.h"
#include "FakeFilterSite.h"
#include "ShellFixture.h"

#include "folders/BrowseCallback.h"
#include "folders/PathBrowseLayout.h"
#include "folders/QVPathBrowseWnd.h"
#include "QVPathDialog.h"

#include <QVDict.h>
#include <QVReplaceWnd.h>
#include <QVSkin.h>

namespace folderfilter_test {

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

class BrowseMessages : public Shell {
  protected:
    void TearDown() override {
        g_pBrowseOkWnd = nullptr;
        Shell::TearDown();
    }

    int Tell(HWND window, UINT message, LPARAM lParam = 0) {
        return BrowseCallback(window, message, lParam, reinterpret_cast<LPARAM>(&m_dialog));
    }

    CQVPathDialog m_dialog{nullptr};
};

CString TextOf(HWND window) {
    wchar_t text[100] = L"";
    ::GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    return text;
}

CRect PlaceIn(HWND dialog, HWND control) {
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

TEST_F(BrowseMessages, InitializedTakesTheDialogOver) {
    FakeBrowseDialog system;
    EXPECT_EQ(0, Tell(system.dialog, BFFM_INITIALIZED));
    EXPECT_FALSE(system.selectionAsked) << "no path was set";
    EXPECT_NE(nullptr, CWnd::FromHandlePermanent(system.dialog));
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(system.dialog, GWL_STYLE));
    EXPECT_EQ(0u, style & (WS_CAPTION | WS_THICKFRAME | WS_SYSMENU | DS_3DLOOK | DS_MODALFRAME));
    EXPECT_EQ(0L, ::GetWindowLongPtrW(system.host, GWL_STYLE) & WS_BORDER);
    EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_BROWSE_FOLDERS"), TextOf(system.dialog));
    EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_OK"), TextOf(system.ok));
    EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_CANCEL"), TextOf(system.cancel));
    EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_NEW_FOLDER"), TextOf(system.newFolder));
    EXPECT_NE(0L, ::GetWindowLongPtrW(system.title, GWL_STYLE) & SS_CENTERIMAGE);
    EXPECT_EQ(static_cast<LRESULT>(QV_GetSysColor(536)), ::SendMessageW(system.tree, TVM_GETTEXTCOLOR, 0, 0));
    EXPECT_EQ(static_cast<LRESULT>(QV_GetSysColor(16)), ::SendMessageW(system.tree, TVM_GETBKCOLOR, 0, 0));
    QVReplaceData bars;
    EXPECT_TRUE(QV_GetReplaceData(system.tree, bars));
    EXPECT_FALSE(::IsWindowVisible(system.status));
    EXPECT_TRUE(::IsWindowVisible(system.newFolder));
}

TEST_F(BrowseMessages, ControlsFollowTheLayout) {
    FakeBrowseDialog system;
    Tell(system.dialog, BFFM_INITIALIZED);
    CRect client;
    ::GetClientRect(system.dialog, &client);
    EXPECT_EQ(CSize(450, 500), client.Size());
    const PathBrowseLayout layout = LayOutPathBrowse(client, USER_DEFAULT_SCREEN_DPI);
    EXPECT_EQ(layout.title, PlaceIn(system.dialog, system.title));
    EXPECT_EQ(layout.tree, PlaceIn(system.dialog, system.host));
    EXPECT_EQ(layout.ok, PlaceIn(system.dialog, system.ok));
    EXPECT_EQ(layout.cancel, PlaceIn(system.dialog, system.cancel));
    EXPECT_EQ(layout.newFolder, PlaceIn(system.dialog, system.newFolder));
}

TEST_F(BrowseMessages, InitializedSelectsAnExistingPathOnly) {
    const std::wstring folder = m_folder.folder(L"preset");
    const std::wstring file = m_folder.file(L"preset.txt", "x");
    const struct {
        std::wstring path;
        bool asked;
    } rows[] = {{folder, true}, {file, true}, {m_folder.path(L"gone"), false}, {L"", false}};
    for (const auto& row : rows) {
        FakeBrowseDialog system;
        m_dialog.m_strPath = row.path.c_str();
        Tell(system.dialog, BFFM_INITIALIZED);
        EXPECT_EQ(row.asked, system.selectionAsked) << testing::PrintToString(row.path);
        if (row.asked) {
            EXPECT_EQ(row.path, system.selection);
            EXPECT_EQ(static_cast<WPARAM>(TRUE), system.selectionKind);
        }
    }
}

TEST_F(BrowseMessages, SecondInitializedOnlySelects) {
    FakeBrowseDialog system;
    Tell(system.dialog, BFFM_INITIALIZED);
    ::SetWindowTextW(system.ok, L"mine");
    m_dialog.m_strPath = m_folder.path().c_str();
    FakeBrowseDialog other;
    EXPECT_EQ(0, Tell(other.dialog, BFFM_INITIALIZED));
    EXPECT_TRUE(other.selectionAsked);
    EXPECT_STREQ(L"mine", TextOf(system.ok));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(other.dialog));
}

TEST_F(BrowseMessages, NewFolderIsHiddenAtTheHostsWish) {
    FakeBrowseDialog system;
    m_dialog.m_bShowNewFolder = 0;
    m_dialog.m_pBrowseWnd->m_bShowNewFolder = 0; // as DoModal hands it on
    Tell(system.dialog, BFFM_INITIALIZED);
    EXPECT_FALSE(::IsWindowVisible(system.newFolder));
    EXPECT_FALSE(::IsWindowVisible(system.status));
}

TEST_F(BrowseMessages, DialogWithoutControlsIsHarmless) {
    FakeBrowseDialog system(FakeBrowseDialog::Controls::None);
    EXPECT_EQ(0, Tell(system.dialog, BFFM_INITIALIZED));
    ::RedrawWindow(system.dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_NE(nullptr, CWnd::FromHandlePermanent(system.dialog));
}

TEST_F(BrowseMessages, StatusStaysWithoutNewFolderButton) {
    FakeBrowseDialog system;
    ::DestroyWindow(system.newFolder);
    Tell(system.dialog, BFFM_INITIALIZED);
    EXPECT_TRUE(::IsWindowVisible(system.status));
}

TEST_F(BrowseMessages, DestroyedDialogGivesEverythingBack) {
    {
        FakeBrowseDialog system;
        Tell(system.dialog, BFFM_INITIALIZED);
    }
    EXPECT_EQ(nullptr, m_dialog.m_pBrowseWnd->m_hWnd);
    FakeBrowseDialog next;
    Tell(next.dialog, BFFM_INITIALIZED);
    EXPECT_EQ(next.dialog, m_dialog.m_pBrowseWnd->m_hWnd);
}

TEST_F(BrowseMessages, ChooserMayDieBeforeTheDialog) {
    FakeBrowseDialog system;
    {
        CQVPathDialog mine(nullptr);
        BrowseCallback(system.dialog, BFFM_INITIALIZED, 0, reinterpret_cast<LPARAM>(&mine));
        EXPECT_NE(nullptr, CWnd::FromHandlePermanent(system.dialog));
    }
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(system.dialog));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(system.tree));
    QVReplaceData bars;
    EXPECT_FALSE(QV_GetReplaceData(system.tree, bars));
    ::SendMessageW(system.dialog, WM_SIZE, SIZE_RESTORED, MAKELPARAM(100, 100));
}

TEST_F(BrowseMessages, SelectionEnablesAWindowThatIsSet) {
    CWnd ok;
    ASSERT_TRUE(ok.CreateEx(0, L"BUTTON", L"ok", WS_POPUP, CRect(0, 0, 50, 20), nullptr, 0));
    g_pBrowseOkWnd = &ok;
    for (const Item& item : MakeItems()) {
        ok.EnableWindow(!item.leadsToFolder);
        EXPECT_EQ(0, Tell(nullptr, BFFM_SELCHANGED, reinterpret_cast<LPARAM>(IdOf(item.path).get())));
        EXPECT_EQ(item.leadsToFolder, ok.IsWindowEnabled() != FALSE) << item.what;
    }
    Tell(nullptr, BFFM_SELCHANGED, reinterpret_cast<LPARAM>(IdOf(L"C:\\").get()));
    EXPECT_TRUE(ok.IsWindowEnabled()) << "a drive root";
    const ItemId computer = IdOf(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");
    Tell(nullptr, BFFM_SELCHANGED, reinterpret_cast<LPARAM>(computer.get()));
    EXPECT_FALSE(ok.IsWindowEnabled()) << "the computer has no path";
    ok.EnableWindow(TRUE);
    Tell(nullptr, BFFM_SELCHANGED, 0);
    EXPECT_FALSE(ok.IsWindowEnabled()) << "no item";
    ok.DestroyWindow();
}

TEST_F(BrowseMessages, SelectionWithoutAWindowChangesNothing) {
    FakeBrowseDialog system;
    Tell(system.dialog, BFFM_INITIALIZED);
    const std::wstring file = m_folder.file(L"a.txt", "x");
    EXPECT_EQ(nullptr, g_pBrowseOkWnd);
    EXPECT_EQ(0, Tell(system.dialog, BFFM_SELCHANGED, reinterpret_cast<LPARAM>(IdOf(file).get())));
    EXPECT_TRUE(::IsWindowEnabled(system.ok));
}

TEST_F(BrowseMessages, SiteGetsTheOneFilter) {
    FakeFilterSite first;
    EXPECT_EQ(0, Tell(nullptr, BFFM_IUNKNOWN, reinterpret_cast<LPARAM>(&first)));
    ASSERT_NE(nullptr, first.filter);
    EXPECT_EQ(0, first.references);
    FakeFilterSite second;
    Tell(nullptr, BFFM_IUNKNOWN, reinterpret_cast<LPARAM>(&second));
    EXPECT_EQ(first.filter, second.filter);
    DWORD flags = 0;
    EXPECT_EQ(S_OK, first.filter->GetEnumFlags(nullptr, nullptr, nullptr, &flags));
    EXPECT_EQ(0x60u, flags);
    // Its pattern is set: an item can be judged.
    IShellFolder* desktop = nullptr;
    ASSERT_EQ(S_OK, ::SHGetDesktopFolder(&desktop));
    const ItemId computer = IdOf(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");
    EXPECT_EQ(S_OK, first.filter->ShouldShow(desktop, nullptr, ::ILFindLastID(computer.get())));
    desktop->Release();
}

TEST_F(BrowseMessages, SiteThatIsNoneIsLeftAlone) {
    FakeFilterSite site;
    site.known = false;
    EXPECT_EQ(0, Tell(nullptr, BFFM_IUNKNOWN, reinterpret_cast<LPARAM>(&site)));
    EXPECT_EQ(nullptr, site.filter);
    EXPECT_EQ(0, site.references);
    EXPECT_EQ(0, Tell(nullptr, BFFM_IUNKNOWN, 0));
}

TEST_F(BrowseMessages, OtherMessagesAndNoChooserAreHarmless) {
    FakeBrowseDialog system;
    for (const UINT message : {0u, 3u, 4u, 6u, 1000u, 0xFFFFFFFFu})
        EXPECT_EQ(0, Tell(system.dialog, message, 0));
    EXPECT_EQ(0, BrowseCallback(system.dialog, BFFM_INITIALIZED, 0, 0));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(system.dialog));
}

} // namespace folderfilter_test
