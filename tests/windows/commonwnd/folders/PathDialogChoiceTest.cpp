// What the chooser answers.
#include "PathDialogFixture.h"

#include <commctrl.h>
#include <shlobj.h>

#include <memory>

namespace pathdialog_test {

constexpr wchar_t kFormer[] = L"C:\\former";

TEST_F(PathDialog, StartsWithDictionaryTitleAndNoPath) {
    CQVPathDialog dialog(nullptr);
    EXPECT_STREQ(_qv_commonctrl::QV_LoadSysString(L"IDS_COMMON_CHOOSE_PATH"), dialog.m_strTitle);
    EXPECT_TRUE(dialog.m_strPath.IsEmpty());
    EXPECT_TRUE(dialog.GetPathName().IsEmpty());
    EXPECT_EQ(1, dialog.m_bShowNewFolder);
    EXPECT_EQ(nullptr, dialog.m_pParent);
    EXPECT_NE(nullptr, dialog.m_pBrowseWnd);
}

TEST_F(PathDialog, PresetFolderIsChosenByOk) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.folder(L"media 视频").c_str();
    EXPECT_EQ(IDOK, Run(dialog, [](Driver& user, HWND frame) {
                  WaitSelected(user, Tree(frame), L"media 视频");
                  user.click(frame, kOk);
              }));
    EXPECT_STREQ(m_folder.path(L"media 视频").c_str(), dialog.GetPathName());
}

TEST_F(PathDialog, PresetFolderThatIsNotThereIsNotSelected) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path(L"nowhere").c_str();
    std::wstring selected;
    EXPECT_EQ(IDCANCEL, Run(dialog, [&](Driver& user, HWND frame) {
                  selected = SelectedText(user, Tree(frame));
                  user.click(frame, kCancel);
              }));
    EXPECT_NE(L"nowhere", selected);
    EXPECT_TRUE(dialog.GetPathName().IsEmpty());
}

TEST_F(PathDialog, OddPresetPathsAreHarmless) {
    for (const std::wstring& path :
         {std::wstring(L"\\"), std::wstring(L"*"), std::wstring(40000, L'x'), std::wstring(L"\\\\.\\nul"),
          std::wstring(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"), m_folder.file(L"a.txt", "x")}) {
        CQVPathDialog dialog(nullptr);
        dialog.m_strPath = path.c_str();
        EXPECT_EQ(IDCANCEL, Run(dialog, [](Driver& user, HWND frame) { user.click(frame, kCancel); }));
        EXPECT_TRUE(dialog.GetPathName().IsEmpty());
    }
}

TEST_F(PathDialog, FolderIsChosenByMouseAndKeyboard) {
    m_folder.folder(L"top\\first");
    m_folder.folder(L"top\\second");
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path(L"top").c_str();
    EXPECT_EQ(IDOK, Run(dialog, [](Driver& user, HWND frame) {
                  const HWND tree = Tree(frame);
                  WaitSelected(user, tree, L"top");
                  const CRect top = SelectedRect(user, tree);
                  user.doubleClickAt(tree, {top.left + 4, top.CenterPoint().y});
                  user.waitFor("the folders below", [&] { return SelectedIsExpanded(user, tree); });
                  user.press(VK_DOWN);
                  WaitSelected(user, tree, L"first");
                  const CRect first = SelectedRect(user, tree);
                  user.clickAt(tree, {first.left + 4, first.bottom + first.Height() / 2});
                  WaitSelected(user, tree, L"second");
                  user.enter();
              }));
    EXPECT_STREQ(m_folder.path(L"top\\second").c_str(), dialog.GetPathName());
}

TEST_F(PathDialog, DriveRootIsAChoice) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = L"C:\\";
    EXPECT_EQ(IDOK, Run(dialog, [](Driver& user, HWND frame) {
                  user.waitFor("the drive", [&] {
                      return SelectedText(user, Tree(frame)).find(L"(C:)") != std::wstring::npos;
                  });
                  user.click(frame, kOk);
              }));
    EXPECT_STREQ(L"C:\\", dialog.GetPathName());
}

TEST_F(PathDialog, CancelEscapeAndCloseEmptyThePath) {
    const struct {
        const char* name;
        std::function<void(Driver&, HWND)> act;
    } rows[] = {{"button", [](Driver& user, HWND frame) { user.click(frame, kCancel); }},
                {"escape", [](Driver& user, HWND) { user.escape(); }},
                {"painted button", [](Driver& user, HWND frame) { user.clickAt(frame, CloseCentre(frame)); }},
                {"system command", [](Driver&, HWND frame) { ::PostMessageW(frame, WM_CLOSE, 0, 0); }}};
    for (const auto& row : rows) {
        CQVPathDialog dialog(nullptr);
        dialog.m_strPath = m_folder.path().c_str();
        EXPECT_EQ(IDCANCEL, Run(dialog, row.act)) << row.name;
        EXPECT_TRUE(dialog.GetPathName().IsEmpty()) << row.name;
    }
}

// The computer has no path of its own.
TEST_F(PathDialog, FolderWithoutPathKeepsTheFormerOne) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = kFormer;
    EXPECT_EQ(IDOK, Run(dialog, [](Driver& user, HWND frame) {
                  user.onUi([&] {
                      PIDLIST_ABSOLUTE computer = nullptr;
                      ASSERT_EQ(S_OK, ::SHGetFolderLocation(nullptr, CSIDL_DRIVES, nullptr, 0, &computer));
                      ::SendMessageW(frame, BFFM_SETSELECTIONW, FALSE, reinterpret_cast<LPARAM>(computer));
                      ::CoTaskMemFree(computer);
                  });
                  ::PostMessageW(frame, WM_COMMAND, MAKEWPARAM(kOk, BN_CLICKED),
                                 reinterpret_cast<LPARAM>(::GetDlgItem(frame, kOk)));
              }));
    EXPECT_STREQ(kFormer, dialog.GetPathName());
}

TEST_F(PathDialog, CanRunAgain) {
    m_folder.folder(L"one");
    m_folder.folder(L"two");
    CQVPathDialog dialog(nullptr);
    for (const wchar_t* name : {L"one", L"two"}) {
        dialog.m_strPath = m_folder.path(name).c_str();
        EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user, HWND frame) {
                      WaitSelected(user, Tree(frame), name);
                      user.click(frame, kOk);
                  }));
        EXPECT_STREQ(m_folder.path(name).c_str(), dialog.GetPathName());
    }
}

TEST_F(PathDialog, CopiesShareTheWindowAndDieInAnyOrder) {
    auto first = std::make_unique<CQVPathDialog>(nullptr);
    first->m_strTitle = L"Copied title";
    first->m_strPath = m_folder.folder(L"copied").c_str();
    first->m_bShowNewFolder = 0;
    auto second = std::make_unique<CQVPathDialog>(*first);
    EXPECT_EQ(first->m_pBrowseWnd, second->m_pBrowseWnd);
    EXPECT_STREQ(first->m_strTitle, second->m_strTitle);
    EXPECT_STREQ(first->m_strPath, second->m_strPath);
    EXPECT_EQ(0, second->m_bShowNewFolder);
    CQVPathDialog third(nullptr);
    third = *second;
    third = *&third;
    EXPECT_EQ(first->m_pBrowseWnd, third.m_pBrowseWnd);
    first.reset();
    EXPECT_EQ(IDOK, Run(third, [](Driver& user, HWND frame) {
                  WaitSelected(user, Tree(frame), L"copied");
                  user.click(frame, kOk);
              }));
    second.reset();
    EXPECT_STREQ(m_folder.path(L"copied").c_str(), third.GetPathName());
}

TEST_F(PathDialog, OwnerIsTheParent) {
    CWnd host;
    ASSERT_TRUE(host.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                              CRect(0, 0, 300, 200), nullptr, 0));
    CQVPathDialog dialog(&host);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&](Driver& user, HWND frame) {
                  EXPECT_EQ(host.m_hWnd, ::GetWindow(frame, GW_OWNER));
                  EXPECT_FALSE(::IsWindowEnabled(host.m_hWnd));
                  user.click(frame, kCancel);
              }));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    host.DestroyWindow();
}

TEST_F(PathDialog, MakesAFolder) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.folder(L"parent").c_str();
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user, HWND frame) {
                  const HWND tree = Tree(frame);
                  WaitSelected(user, tree, L"parent");
                  user.click(frame, kNewFolder);
                  const HWND field = user.waitDescendant(tree, L"Edit");
                  user.waitFocus(field);
                  user.type(L"made");
                  user.enter();
                  WaitSelected(user, tree, L"made");
                  user.click(frame, kOk);
              }));
    EXPECT_STREQ(m_folder.path(L"parent\\made").c_str(), dialog.GetPathName());
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, ::GetFileAttributesW(m_folder.path(L"parent\\made").c_str()));
}

} // namespace pathdialog_test
