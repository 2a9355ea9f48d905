// Bad input and the remembered folder.
#include "FileDialogFixture.h"

#include <QVDict.h>
#include <QVSkin.h>

namespace filedialog_test {

using _qv_commonclass::CZ5Regkey;

class RememberedFolder : public FileDialog {
  protected:
    static void Store(const wchar_t* folder) {
        CZ5Regkey item;
        ASSERT_TRUE(item.OpenItem(L"pathset", TRUE));
        ASSERT_TRUE(item.SetValue(L"filepath", folder));
    }
    static CString Stored() {
        CZ5Regkey item;
        CString folder = L"(none)";
        if (item.OpenItem(L"pathset", FALSE))
            item.GetValue(L"filepath", folder);
        return folder;
    }
    void RunAndCancel() {
        const auto dialog = Make(Kind::Open);
        EXPECT_EQ(IDCANCEL, Run(*dialog, [](Driver& user) { user.click(Frame(user), kCancel); }));
    }
};

TEST_F(RememberedFolder, ThatIsGoneBecomesTheRoot) {
    Store(L"C:\\no such folder\\at all");
    RunAndCancel();
    EXPECT_STREQ(L"C:\\", Stored());
}

TEST_F(RememberedFolder, ThatExistsStays) {
    Store(m_folder.path().c_str());
    RunAndCancel();
    EXPECT_STREQ(m_folder.path().c_str(), Stored());
}

TEST_F(RememberedFolder, ThatIsAFileStays) {
    const std::wstring file = m_folder.file(L"a.avi", "x");
    Store(file.c_str());
    RunAndCancel();
    EXPECT_STREQ(file.c_str(), Stored());
}

TEST_F(RememberedFolder, ThatIsEmptyCountsAsGone) {
    Store(L"");
    RunAndCancel();
    EXPECT_STREQ(L"C:\\", Stored());
}

TEST_F(RememberedFolder, ThatWasNeverStoredStaysSo) {
    Store(nullptr);
    RunAndCancel();
    EXPECT_STREQ(L"(none)", Stored());
}

// A value of another kind where the text should be: the profile cannot be read.
TEST_F(RememberedFolder, ThatCannotBeReadIsLeftAlone) {
    Store(nullptr);
    const wchar_t key[] = L"Software\\QVCommonWndTest\\Items\\pathset";
    const DWORD number = 7;
    ASSERT_EQ(ERROR_SUCCESS,
              ::RegSetKeyValueW(HKEY_CURRENT_USER, key, L"filepath", REG_DWORD, &number, sizeof(number)));
    RunAndCancel();
    DWORD type = 0;
    EXPECT_EQ(ERROR_SUCCESS,
              ::RegGetValueW(HKEY_CURRENT_USER, key, L"filepath", RRF_RT_ANY, &type, nullptr, nullptr));
    EXPECT_EQ(static_cast<DWORD>(REG_DWORD), type);
    Store(nullptr);
}

TEST_F(RememberedFolder, IsWhereTheDialogStarts) {
    m_folder.file(L"one.avi", "x");
    m_folder.file(L"two.avi", "x");
    Store(m_folder.path().c_str());
    const auto dialog = Make(Kind::Open);
    dialog->m_ofn.lpstrInitialDir = nullptr;
    EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) {
                  List(user, Frame(user), 2);
                  Confirm(user, L"one.avi");
              }));
    EXPECT_STREQ(m_folder.path(L"one.avi").c_str(), dialog->GetPathName());
    EXPECT_EQ(nullptr, dialog->m_ofn.lpstrInitialDir) << "what the host said stays";
    Store(nullptr);
}

TEST_F(RememberedFolder, GivesWayToTheHostsFolder) {
    m_folder.folder(L"other");
    m_folder.file(L"one.avi", "x");
    Store(m_folder.path(L"other").c_str());
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        List(user, frame, 2);
        user.click(frame, kCancel);
    });
    Store(nullptr);
}

TEST_F(FileDialog, MultiSelectBufferIsWholeWhateverTheHostWrites) {
    const std::wstring file = m_folder.file(L"a file with a name that sixteen units do not hold.avi", "x");
    wchar_t own[16] = L"";
    for (wchar_t* const buffer : {own, static_cast<wchar_t*>(nullptr)}) {
        const auto dialog = Make(Kind::Open, L"AVI|*.avi|", OFN_ALLOWMULTISELECT);
        dialog->m_ofn.nMaxFile = 16;
        if (buffer)
            dialog->m_ofn.lpstrFile = buffer;
        EXPECT_EQ(IDOK,
                  Run(*dialog, [&](Driver& user) { Confirm(user, file.substr(file.rfind(L'\\') + 1)); }));
        EXPECT_EQ(std::vector<std::wstring>{file}, Paths(*dialog));
    }
}

TEST_F(FileDialog, NameIsRefusedOnceWhenTheLatchSaysSo) {
    m_folder.file(L"a.avi", "x");
    const auto dialog = Make(Kind::Open);
    dialog->m_bNameOK = 0;
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  const HWND frame = Frame(user);
                  Confirm(user, L"a.avi");
                  user.waitFor("the latch", [&] { return dialog->m_bNameOK == 1; });
                  EXPECT_TRUE(::IsWindowVisible(frame));
                  Confirm(user, L"a.avi");
              }));
}

TEST_F(FileDialog, NullTextsAndOddSizesStillShowADialog) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, TRUE, FALSE, 0xFFFFFFFC);
    dialog.m_ofn.lpstrInitialDir = m_folder.path().c_str();
    EXPECT_EQ(IDCANCEL, Run(dialog, [](Driver& user) { user.click(Frame(user), kCancel); }));
}

TEST_F(FileDialog, VanishedInitialFolderStillShowsADialog) {
    m_folder.file(L"a.avi", "x");
    const auto dialog = Make(Kind::Open);
    dialog->m_ofn.lpstrInitialDir = L"C:\\no such folder\\at all";
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) { Confirm(user, m_folder.path(L"a.avi")); }));
    EXPECT_STREQ(m_folder.path(L"a.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialog, FilterWithoutBarsStillShowsADialog) {
    m_folder.file(L"a.avi", "x");
    for (const wchar_t* filter : {L"", L"|", L"||||", L"no bars at all", L"AVI|*.avi"}) {
        const auto dialog = Make(Kind::Open, filter);
        EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) { Confirm(user, L"a.avi"); }))
            << testing::PrintToString(filter);
        EXPECT_STREQ(m_folder.path(L"a.avi").c_str(), dialog->GetPathName());
    }
}

TEST_F(FileDialog, HugeFilterIsTaken) {
    std::wstring filter;
    for (int i = 0; i < 500; ++i)
        filter += L"Kind " + std::to_wstring(i) + L"|*.x" + std::to_wstring(i) + L"|";
    const auto dialog = Make(Kind::Save, filter.c_str());
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  ChooseFilter(user, Frame(user), 499);
                  Confirm(user, L"a");
              }));
    EXPECT_STREQ(L"X499", dialog->GetFileExt());
}

TEST_F(FileDialog, TooSmallHostBufferIsCancel) {
    m_folder.file(L"a file with a name that does not fit.avi", "x");
    const auto dialog = Make(Kind::Open);
    wchar_t tiny[8] = {};
    dialog->m_ofn.lpstrFile = tiny;
    dialog->m_ofn.nMaxFile = 8;
    Run(*dialog, [](Driver& user) {
        Confirm(user, L"a file with a name that does not fit.avi");
        user.settle();
        if (const HWND frame = qvtest::findWindow({.className = L"#32770"}))
            ::PostMessageW(frame, WM_COMMAND, kCancel, 0);
    });
    EXPECT_EQ(L'\0', tiny[7]) << "nothing is written behind the buffer";
}

TEST_F(FileDialog, BrokenSkinAndDictionaryStillGiveAUsableDialog) {
    m_folder.file(L"a.avi", "x");
    const std::wstring skin = m_folder.folder(L"skin");
    m_folder.file(L"skin\\skin.txt", std::string("\xFF\xFE\0 broken = = =\n", 18));
    m_folder.file(L"skin\\CommonCtrl\\Frame\\new\\close.png", "no picture");
    const std::wstring lang = m_folder.folder(L"lang");
    _qv_commonctrl::QV_SetSkinPath(skin.c_str());
    _qv_commonctrl::QV_SetLanguagePath(lang.c_str());
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) { Confirm(user, L"a.avi"); }));
    _qv_commonctrl::QV_SetLanguagePath(nullptr);
    _qv_commonctrl::QV_SetSkinPath(nullptr);
    EXPECT_STREQ(m_folder.path(L"a.avi").c_str(), dialog->GetPathName());
}

} // namespace filedialog_test
