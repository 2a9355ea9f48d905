// Files and shortcuts in the running chooser.
#include "ImportPatch.h"
#include "PathDialogFixture.h"

#include <commctrl.h>
#include <shlobj.h>

#include <vector>

namespace pathdialog_test {

namespace {

// The system's dialog with files in its tree, to be chosen: where it hands out no filter site it lists none
// of its own accord, and shortcuts would be missing that the filter lets through elsewhere.
PIDLIST_ABSOLUTE WINAPI BrowseWithFiles(BROWSEINFOW* info) {
    BROWSEINFOW withFiles = *info;
    withFiles.ulFlags &= ~static_cast<UINT>(BIF_RETURNONLYFSDIRS);
    withFiles.ulFlags |= BIF_BROWSEINCLUDEFILES;
    return ::SHBrowseForFolderW(&withFiles);
}

class PathDialogShortcut : public PathDialog {
  protected:
    void Shortcut(const std::wstring& name, const std::wstring& target) const {
        IShellLinkW* link = nullptr;
        ASSERT_EQ(S_OK, ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                           reinterpret_cast<void**>(&link)));
        IPersistFile* file = nullptr;
        EXPECT_EQ(S_OK, link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)));
        link->SetPath(target.c_str());
        EXPECT_EQ(S_OK, file->Save(m_folder.path(name).c_str(), TRUE));
        file->Release();
        link->Release();
    }

    // Chooses an item of m_folder in the chooser; the end code.
    INT_PTR Choose(CQVPathDialog& dialog, const std::wstring& name) const {
        const ImportPatch patch(L"QVCommonWndU.dll", "SHBrowseForFolderW",
                                reinterpret_cast<void*>(&BrowseWithFiles));
        dialog.m_strPath = m_folder.path(name).c_str();
        return Run(dialog, [&](Driver& user, HWND frame) {
            const std::wstring stem = name.substr(0, name.rfind(L'.'));
            user.waitFor("the shortcut", [&] { return SelectedText(user, Tree(frame)).find(stem) == 0; });
            user.click(frame, kOk);
        });
    }
};

std::vector<std::wstring> ChildrenOfSelection(Driver& user, HWND tree) {
    std::vector<std::wstring> texts;
    user.onUi([&] {
        for (HTREEITEM child = TreeView_GetChild(tree, TreeView_GetSelection(tree)); child;
             child = TreeView_GetNextSibling(tree, child)) {
            wchar_t text[MAX_PATH] = L"";
            TVITEMW item = {};
            item.mask = TVIF_TEXT;
            item.hItem = child;
            item.pszText = text;
            item.cchTextMax = MAX_PATH;
            ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            texts.emplace_back(text);
        }
    });
    return texts;
}

} // namespace

TEST_F(PathDialogShortcut, ToAFolderAnswersTheFolder) {
    const std::wstring target = m_folder.folder(L"目标 target");
    Shortcut(L"leads there.lnk", target);
    CQVPathDialog dialog(nullptr);
    EXPECT_EQ(IDOK, Choose(dialog, L"leads there.lnk"));
    EXPECT_STREQ(target.c_str(), dialog.GetPathName());
}

TEST_F(PathDialogShortcut, InCapitalsAnswersNothing) {
    Shortcut(L"CAPITALS.LNK", m_folder.folder(L"target"));
    CQVPathDialog dialog(nullptr);
    EXPECT_EQ(IDOK, Choose(dialog, L"CAPITALS.LNK"));
    EXPECT_STREQ(L"", dialog.GetPathName());
}

TEST_F(PathDialogShortcut, ThatLeadsNowhereAnswersNothing) {
    Shortcut(L"nowhere.lnk", L"");
    CQVPathDialog dialog(nullptr);
    EXPECT_EQ(IDOK, Choose(dialog, L"nowhere.lnk"));
    EXPECT_STREQ(L"", dialog.GetPathName());
}

TEST_F(PathDialogShortcut, FilesAreNeverShown) {
    m_folder.folder(L"top\\folder");
    const std::wstring file = m_folder.file(L"top\\clip.mov", "x");
    m_folder.file(L"top\\no extension", "x");
    Shortcut(L"top\\to a file.lnk", file);
    Shortcut(L"top\\IN CAPITALS.LNK", m_folder.path(L"top\\folder"));
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path(L"top").c_str();
    Run(dialog, [](Driver& user, HWND frame) {
        const HWND tree = Tree(frame);
        WaitSelected(user, tree, L"top");
        user.press(VK_RIGHT);
        user.waitFor("the folders below", [&] { return SelectedIsExpanded(user, tree); });
        EXPECT_EQ(std::vector<std::wstring>{L"folder"}, ChildrenOfSelection(user, tree));
        user.click(frame, kCancel);
    });
}

// A drive without a disk must not bring up a box of the system over the chooser, and the host gets its own
// mode back.
TEST_F(PathDialogShortcut, NoBoxOfTheSystemWhileItRuns) {
    const DWORD before = ::GetThreadErrorMode();
    ASSERT_EQ(0u, before & SEM_FAILCRITICALERRORS);
    CQVPathDialog dialog(nullptr);
    Run(dialog, [](Driver& user, HWND frame) {
        DWORD mode = 0;
        user.onUi([&] { mode = ::GetThreadErrorMode(); });
        EXPECT_EQ(DWORD(SEM_FAILCRITICALERRORS), mode & SEM_FAILCRITICALERRORS);
        user.click(frame, kCancel);
    });
    EXPECT_EQ(before, ::GetThreadErrorMode());
}

} // namespace pathdialog_test
