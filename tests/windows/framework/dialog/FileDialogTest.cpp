// The system's hook-style dialog behind CFileDialog.
#include "LeakGuard.h"
#include "ModalScript.h"
#include "TempFolder.h"
#include "TestWnd.h"

#include "afxdlgs.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace qvtest;

namespace {

constexpr int kNameCombo = 1148;
constexpr int kTypeCombo = 1136;

class LoggingDialog : public CFileDialog {
  public:
    using CFileDialog::CFileDialog;
    std::string m_log;
    int m_nReject = 0;
    std::function<void(LoggingDialog&)> m_onInitDone;
    CString m_strPath, m_strName, m_strExt, m_strTitle, m_strFolder; // at the last selection

    bool Logged(const char* entry) const { return m_log.find(entry) != std::string::npos; }

  protected:
    BOOL OnInitDialog() override {
        m_log += GetParent() ? "dialog;" : "dialog without parent;";
        return CFileDialog::OnInitDialog();
    }
    void OnInitDone() override {
        m_log += "init;";
        if (m_onInitDone)
            m_onInitDone(*this);
    }
    void OnFolderChange() override { m_log += "folder;"; }
    void OnTypeChange() override { m_log += "type;"; }
    void OnFileNameChange() override {
        m_log += "name;";
        m_strPath = GetPathName();
        m_strName = GetFileName();
        m_strExt = GetFileExt();
        m_strTitle = GetFileTitle();
        m_strFolder = GetFolderPath();
    }
    BOOL OnFileNameOK() override {
        m_log += "ok;";
        return m_nReject-- > 0;
    }
};

class FileDialog : public ::testing::Test {
  protected:
    void SetUp() override {
        m_folder.file(L"one.txt", "1");
        m_folder.file(L"two.more.txt", "2");
        m_folder.file(L"three.png", "3");
    }
    void Prepare(CFileDialog& dlg) const { dlg.m_ofn.lpstrInitialDir = m_folder.path().c_str(); }
    CString Path(LPCTSTR name) const { return CString(m_folder.path(name).c_str()); }
    TempFolder m_folder;
};

HWND WaitDialog(Driver& user, LPCTSTR title) {
    const HWND dialog = user.waitWindow({.className = L"#32770", .title = title});
    user.waitControl(dialog, kNameCombo);
    return dialog;
}

HWND NameEdit(Driver& user, HWND dialog) {
    return user.waitDescendant(user.waitControl(dialog, kNameCombo), L"Edit");
}

void SetTitle(CFileDialog& dlg, LPCTSTR title) {
    dlg.m_ofn.lpstrTitle = title;
}

TEST_F(FileDialog, OpensATypedName) {
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Texts|*.txt|All|*.*||");
    Prepare(dlg);
    SetTitle(dlg, L"Open one");
    ModalScript script;
    script.step("type a name", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Open one");
        user.replaceText(NameEdit(user, dialog), L"two.more.txt");
        user.click(dialog, IDOK);
    });
    ASSERT_EQ(IDOK, script.run([&] { return dlg.DoModal(); })) << dlg.m_log;
    EXPECT_STREQ(Path(L"two.more.txt"), dlg.GetPathName());
    EXPECT_STREQ(L"two.more.txt", dlg.GetFileName());
    EXPECT_STREQ(L"txt", dlg.GetFileExt());
    EXPECT_STREQ(L"two.more", dlg.GetFileTitle());
    EXPECT_STREQ(L"", dlg.GetFolderPath()) << "only while the dialog runs";
    POSITION pos = dlg.GetStartPosition();
    ASSERT_NE(nullptr, pos);
    EXPECT_STREQ(Path(L"two.more.txt"), dlg.GetNextPathName(pos));
    EXPECT_EQ(nullptr, pos);
    EXPECT_EQ(0u, dlg.m_log.find("dialog;init;folder;")) << dlg.m_log;
    EXPECT_TRUE(dlg.Logged("ok;"));
    EXPECT_EQ(nullptr, dlg.m_hWnd);
}

TEST_F(FileDialog, CancelGivesNoName) {
    LoggingDialog dlg(TRUE);
    Prepare(dlg);
    SetTitle(dlg, L"Cancel me");
    ModalScript script;
    script.step("escape", [&](Driver& user) { user.click(WaitDialog(user, L"Cancel me"), IDCANCEL); });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dlg.DoModal(); }));
    EXPECT_EQ(nullptr, dlg.GetStartPosition());
    EXPECT_STREQ(L"", dlg.GetPathName());
}

TEST_F(FileDialog, SaveAppendsTheDefaultExtension) {
    LoggingDialog dlg(FALSE, L"avi", L"clip", OFN_HIDEREADONLY, L"Video|*.avi||");
    Prepare(dlg);
    SetTitle(dlg, L"Save it");
    ModalScript script;
    script.step("save", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Save it");
        EXPECT_EQ(L"clip", user.text(NameEdit(user, dialog)));
        user.click(dialog, IDOK);
    });
    ASSERT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
    EXPECT_STREQ(Path(L"clip.avi"), dlg.GetPathName());
    EXPECT_FALSE(dlg.m_bOpenFileDialog);
}

TEST_F(FileDialog, NameCanBeRejected) {
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY);
    dlg.m_nReject = 1;
    Prepare(dlg);
    SetTitle(dlg, L"Reject once");
    ModalScript script;
    script.step("twice", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Reject once");
        user.replaceText(NameEdit(user, dialog), L"one.txt");
        user.click(dialog, IDOK);
        user.waitFor("the first attempt", [&] { return dlg.m_nReject == 0; });
        user.settle();
        EXPECT_TRUE(::IsWindowVisible(dialog));
        user.click(dialog, IDOK);
    });
    EXPECT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
    EXPECT_STREQ(Path(L"one.txt"), dlg.GetPathName());
}

TEST_F(FileDialog, GettersAnswerWhileItRuns) {
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY);
    Prepare(dlg);
    SetTitle(dlg, L"Ask me");
    ModalScript script;
    script.step("select", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Ask me");
        const HWND view = user.waitDescendant(dialog, L"SHELLDLL_DefView");
        const HWND list = user.waitControl(view, 1);
        user.waitFor("the files", [&] { return user.send(list, LVM_GETITEMCOUNT) == 3; });
        user.onUi([&] {
            CListCtrl files;
            files.Attach(list);
            for (int i = 0; i < files.GetItemCount(); ++i)
                if (files.GetItemText(i, 0) == L"two.more.txt")
                    files.SetItemState(i, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            files.Detach();
        });
        user.waitFor("the notification", [&] { return !dlg.m_strName.IsEmpty(); });
        user.click(dialog, IDCANCEL);
    });
    script.run([&] { return dlg.DoModal(); });
    EXPECT_STREQ(Path(L"two.more.txt"), dlg.m_strPath);
    EXPECT_STREQ(L"two.more.txt", dlg.m_strName);
    EXPECT_STREQ(L"txt", dlg.m_strExt);
    EXPECT_STREQ(L"two.more", dlg.m_strTitle);
    EXPECT_STREQ(m_folder.path().c_str(), dlg.m_strFolder);
}

TEST_F(FileDialog, SeveralFiles) {
    std::vector<wchar_t> buffer(260000);
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_ALLOWMULTISELECT);
    dlg.m_ofn.lpstrFile = buffer.data();
    dlg.m_ofn.nMaxFile = static_cast<DWORD>(buffer.size());
    Prepare(dlg);
    SetTitle(dlg, L"Several");
    ModalScript script;
    script.step("type", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Several");
        user.replaceText(NameEdit(user, dialog), L"\"one.txt\" \"three.png\"");
        user.click(dialog, IDOK);
    });
    ASSERT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
    std::vector<CString> paths;
    for (POSITION pos = dlg.GetStartPosition(); pos;)
        paths.push_back(dlg.GetNextPathName(pos));
    ASSERT_EQ(2u, paths.size());
    EXPECT_STREQ(Path(L"one.txt"), paths[0]);
    EXPECT_STREQ(Path(L"three.png"), paths[1]);
    EXPECT_STREQ(Path(L"one.txt"), dlg.GetPathName());
}

TEST_F(FileDialog, FilterChangeIsTold) {
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Texts|*.txt|Pictures|*.png||");
    Prepare(dlg);
    SetTitle(dlg, L"Filter");
    ModalScript script;
    script.step("choose the second", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Filter");
        const HWND combo = user.waitControl(dialog, kTypeCombo);
        EXPECT_EQ(2, user.send(combo, CB_GETCOUNT));
        user.onUi([&] {
            ::SendMessageW(combo, CB_SETCURSEL, 1, 0);
            ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kTypeCombo, CBN_SELENDOK),
                           reinterpret_cast<LPARAM>(combo));
            ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kTypeCombo, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(combo));
        });
        user.waitFor("the notification", [&] { return dlg.Logged("type;"); });
        user.click(dialog, IDCANCEL);
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dlg.DoModal(); }));
}

TEST_F(FileDialog, ControlsCanBeTextedAndHidden) {
    LoggingDialog dlg(TRUE);
    Prepare(dlg);
    SetTitle(dlg, L"Controls");
    dlg.m_onInitDone = [](LoggingDialog& d) {
        d.SetControlText(IDOK, L"Take");
        d.HideControl(kTypeCombo);
    };
    ModalScript script;
    script.step("look", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Controls");
        user.waitText(user.waitControl(dialog, IDOK), L"Take");
        EXPECT_FALSE(::IsWindowVisible(user.waitControl(dialog, kTypeCombo)));
        user.click(dialog, IDCANCEL);
    });
    script.run([&] { return dlg.DoModal(); });
}

TEST_F(FileDialog, OwnerIsDisabledAndComesBack) {
    TestWnd owner;
    ASSERT_TRUE(owner.CreateTop());
    owner.ShowWindow(SW_SHOW);
    LoggingDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, nullptr, &owner);
    Prepare(dlg);
    SetTitle(dlg, L"Owned");
    ModalScript script;
    script.step("look", [&](Driver& user) {
        const HWND dialog = WaitDialog(user, L"Owned");
        EXPECT_EQ(owner.m_hWnd, ::GetWindow(dialog, GW_OWNER));
        EXPECT_FALSE(::IsWindowEnabled(owner.m_hWnd));
        user.click(dialog, IDCANCEL);
    });
    script.run([&] { return dlg.DoModal(); });
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(FileDialog, EndDialogOnTheFrameEndsIt) {
    LoggingDialog dlg(TRUE);
    Prepare(dlg);
    SetTitle(dlg, L"Ended");
    dlg.m_onInitDone = [](LoggingDialog& d) { ::EndDialog(d.GetParent()->m_hWnd, IDOK); };
    ModalScript script;
    script.run([&] { return dlg.DoModal(); });
    EXPECT_EQ(nullptr, dlg.m_hWnd);
}

TEST_F(FileDialog, ListOfNamesIsReadWithinTheBuffer) {
    CFileDialog dlg(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    wchar_t full[] = {L'C', L':', L'\\', 0, L'a', 0, L'b', L'c'}; // not terminated
    dlg.m_ofn.lpstrFile = full;
    dlg.m_ofn.nMaxFile = static_cast<DWORD>(std::size(full));
    POSITION pos = dlg.GetStartPosition();
    EXPECT_STREQ(L"C:\\a", dlg.GetNextPathName(pos));
    ASSERT_NE(nullptr, pos);
    EXPECT_STREQ(L"C:\\bc", dlg.GetNextPathName(pos));
    EXPECT_EQ(nullptr, pos);
    EXPECT_STREQ(L"", dlg.GetNextPathName(pos));
    dlg.m_ofn.lpstrFile = nullptr;
    EXPECT_EQ(nullptr, dlg.GetStartPosition());
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
}

TEST_F(FileDialog, StructureIsTheFullOne) {
    CFileDialog dlg(TRUE, nullptr, nullptr, 0, L"a|*.a|b|*.b||", nullptr, 0, TRUE);
    EXPECT_EQ(152u, dlg.m_ofn.lStructSize);
    EXPECT_EQ(0, memcmp(dlg.m_ofn.lpstrFilter, L"a\0*.a\0b\0*.b\0\0", 14 * sizeof(wchar_t)));
    CFileDialog open(TRUE, nullptr, nullptr, 0, L"a|*.a");
    EXPECT_EQ(0, memcmp(open.m_ofn.lpstrFilter, L"a\0*.a\0\0", 8 * sizeof(wchar_t)));
    CFileDialog none(TRUE, nullptr, nullptr, 0, L"");
    EXPECT_EQ(nullptr, none.m_ofn.lpstrFilter);
}

} // namespace
