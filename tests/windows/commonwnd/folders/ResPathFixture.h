// What the tests of the path settings share: the running dialog and the windows it opens, found and worked by hand.
#pragma once

#include "PathsFixture.h"

#include <shlobj.h>

namespace paths_test {

class ResPath : public Paths {
  protected:
    void SetUp() override {
        Paths::SetUp();
        m_res = m_folder.folder(L"res");
        m_media = m_folder.folder(L"media");
        m_other = m_folder.folder(L"other");
    }

    static HWND Settings(Driver& user) { return user.waitWindow({.title = L"Select Path"}); }
    static HWND ResourceEdit(HWND settings) { return ::GetDlgItem(settings, IDC_RESPATH_EDIT); }
    static HWND MediaEdit(HWND settings) { return ::GetDlgItem(settings, IDC_MEDIAPATH_EDIT); }
    static bool OkEnabled(HWND settings) { return ::IsWindowEnabled(::GetDlgItem(settings, IDOK)); }

    // Changes an edit as typing does, without the time that the keys take.
    static void Put(Driver& user, HWND edit, const std::wstring& text) {
        user.send(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }

    static INT_PTR Run(CQVSetResPath& settings, const std::function<void(Driver&, HWND)>& act) {
        return qvtest::runBeside([&] { return settings.DoModal(); }, {.title = L"Select Path"}, act);
    }

    // Waits for the complaint about bad folders, answers it and returns its text.
    static std::wstring Complaint(Driver& user, HWND settings) {
        const HWND box = user.waitWindow({.className = L"#32770", .owner = settings});
        constexpr int kMessageText = 0xFFFF;
        std::wstring text = user.text(box, kMessageText);
        user.click(box, ::GetDlgItem(box, IDOK) ? IDOK : IDCANCEL);
        user.waitGone(box);
        return text;
    }

    // Waits for the folder chooser that a browse button opens.
    static HWND Chooser(Driver& user) {
        constexpr int kNewFolder = 14150;
        const HWND chooser = user.waitWindow({.className = L"#32770", .control = kNewFolder});
        user.waitDescendant(chooser, WC_TREEVIEWW);
        user.settle();
        return chooser;
    }

    // Presses a browse button, goes to a folder in the chooser and answers OK.
    static void Choose(Driver& user, HWND settings, int button, const std::wstring& path) {
        user.click(settings, button);
        const HWND chooser = Chooser(user);
        const HWND tree = qvtest::findDescendant(chooser, WC_TREEVIEWW);
        const std::wstring name = path.substr(path.rfind(L'\\') + 1);
        user.waitFor("the folder " + qvtest::toUtf8(name), [&] {
            // Asked for again until it is there: the tree may still be filling itself.
            user.send(chooser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
            wchar_t text[MAX_PATH] = L"";
            user.onUi([&] {
                TVITEMW item = {};
                item.mask = TVIF_TEXT;
                item.hItem = TreeView_GetSelection(tree);
                item.pszText = text;
                item.cchTextMax = MAX_PATH;
                ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            });
            return name == text;
        });
        user.click(chooser, IDOK);
        user.waitGone(chooser);
    }

    TempFolder m_folder;
    std::wstring m_res;
    std::wstring m_media;
    std::wstring m_other;
};

} // namespace paths_test
