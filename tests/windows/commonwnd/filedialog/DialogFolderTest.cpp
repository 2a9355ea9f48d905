// The import-folder button in the running dialog.
#include "RunningDialog.h"

namespace panels_test {

namespace {

constexpr int kFileTypeCombo = 1136;
constexpr int kFileNameCombo = 1148;
constexpr DWORD kBoth = FDO_KEEPOK | FDO_IMPORTFOLDER;

class DialogFolder : public RunningDialog {
  protected:
    void SetUp() override {
        RunningDialog::SetUp();
        m_folder.file(L"plain.txt", "text");
        m_folder.file(L"other.txt", "text");
        m_folder.folder(L"takes");
    }
    static void Import(Driver& user, TestDialog& dialog) {
        user.click(dialog.m_wndForderImport.m_hWnd, kImportButton);
    }
};

} // namespace

TEST_F(DialogFolder, NoPanelWithoutItsOption) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&](Driver& user) {
                  EXPECT_EQ(nullptr, dialog.m_wndForderImport.m_hWnd);
                  EXPECT_EQ(1, user.send(dialog.m_hWnd, WM_QV_IMPORTFORDER)) << "nothing is selected";
                  Select(user, dialog, L"plain.txt");
                  EXPECT_EQ(1, user.send(dialog.m_hWnd, WM_QV_IMPORTFORDER)) << "no folder is selected";
                  EXPECT_TRUE(::IsWindowVisible(dialog.Frame()));
                  user.click(dialog.Frame(), IDCANCEL);
              }));
    EXPECT_EQ(eSelFile, dialog.GetSelTpye());
}

TEST_F(DialogFolder, ButtonIsEnabledForOneFolderOnly) {
    for (const DWORD option : {static_cast<DWORD>(FDO_IMPORTFOLDER), kBoth}) {
        TestDialog dialog(m_folder, option);
        Run(dialog, [&](Driver& user) {
            EXPECT_FALSE(dialog.ImportEnabled()) << "at the start";
            Select(user, dialog, L"takes");
            EXPECT_TRUE(dialog.ImportEnabled());
            EXPECT_EQ(CString(m_folder.path(L"takes").c_str()), dialog.m_strSelPath);
            Select(user, dialog, L"plain.txt");
            EXPECT_FALSE(dialog.ImportEnabled());
            EXPECT_TRUE(dialog.m_strSelPath.IsEmpty());
            Select(user, dialog, L"takes");
            EXPECT_TRUE(dialog.ImportEnabled());
            Select(user, dialog, nullptr);
            EXPECT_FALSE(dialog.ImportEnabled());
            Select(user, dialog, L"takes");
            const HWND types = ::GetDlgItem(dialog.Frame(), kFileTypeCombo);
            user.onUi([&] { ::SetFocus(types); });
            user.press(VK_END);
            user.waitFor("the button to be disabled by the next type",
                         [&] { return !dialog.ImportEnabled(); });
            user.click(dialog.Frame(), IDCANCEL);
        });
    }
}

TEST_F(DialogFolder, ButtonEndsTheDialogWithTheFolder) {
    for (const DWORD option : {static_cast<DWORD>(FDO_IMPORTFOLDER), kBoth}) {
        TestDialog dialog(m_folder, option);
        EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                      Select(user, dialog, L"takes");
                      Import(user, dialog);
                  }));
        EXPECT_EQ(eSelForder, dialog.GetSelTpye());
        EXPECT_EQ(CString(m_folder.path(L"takes").c_str()), dialog.GetSelForderPath());
        EXPECT_EQ(CString(L"All"), dialog.GetSelFileFormat().Left(3));
    }
}

TEST_F(DialogFolder, ButtonIsPressedByKeyboard) {
    TestDialog dialog(m_folder, kBoth);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"takes");
                  TabTo(user, dialog, ::GetDlgItem(dialog.m_wndForderImport.m_hWnd, kImportButton));
                  user.press(VK_SPACE);
              }));
    EXPECT_EQ(eSelForder, dialog.GetSelTpye());
    EXPECT_EQ(CString(m_folder.path(L"takes").c_str()), dialog.GetSelForderPath());
}

TEST_F(DialogFolder, AnswersTheTypeThatWasChosen) {
    TestDialog dialog(m_folder, FDO_IMPORTFOLDER);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  const HWND types = ::GetDlgItem(dialog.Frame(), kFileTypeCombo);
                  user.onUi([&] { ::SetFocus(types); });
                  user.press(VK_END);
                  user.waitFor("the type", [&] { return user.send(types, CB_GETCURSEL) == 1; });
                  user.settle();
                  Select(user, dialog, L"takes");
                  Import(user, dialog);
              }));
    EXPECT_EQ(CString(L"Text"), dialog.GetSelFileFormat().Left(4));
}

TEST_F(DialogFolder, NameOfTheFolderStandsInTheNameBox) {
    TestDialog dialog(m_folder, FDO_IMPORTFOLDER);
    Run(dialog, [&](Driver& user) {
        Select(user, dialog, L"takes");
        user.waitText(::GetDlgItem(dialog.Frame(), kFileNameCombo), L"takes");
        user.click(dialog.Frame(), IDCANCEL);
    });
    EXPECT_EQ(eSelFile, dialog.GetSelTpye());
}

// Open would otherwise end with the path of a file that is not there.
TEST_F(DialogFolder, NameOfTheFolderGoesWithItsSelection) {
    m_folder.file(L"takes\\inner.txt", "text");
    TestDialog dialog(m_folder, kBoth);
    Run(dialog, [&](Driver& user) {
        const HWND name = ::GetDlgItem(dialog.Frame(), kFileNameCombo);
        Select(user, dialog, L"takes");
        user.waitText(name, L"takes");
        Select(user, dialog, nullptr);
        user.waitText(name, L"");
        Select(user, dialog, L"takes");
        user.waitText(name, L"takes");
        const HWND former = dialog.List();
        user.click(dialog.Frame(), IDOK); // enters it
        user.waitFor("the folder", [&] { return dialog.List() && dialog.List() != former; });
        user.waitText(name, L"");
        user.click(dialog.Frame(), IDCANCEL);
    });
}

TEST_F(DialogFolder, ImportWithoutATypeAnswersNone) {
    TestDialog dialog(m_folder, FDO_IMPORTFOLDER);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"takes");
                  user.send(::GetDlgItem(dialog.Frame(), kFileTypeCombo), CB_SETCURSEL,
                            static_cast<WPARAM>(-1));
                  Import(user, dialog);
              }));
    EXPECT_TRUE(dialog.GetSelFileFormat().IsEmpty());
}

// The panel alone stands in for Open; beside Open it stands four pixels below Cancel, both as wide as its button.
TEST_F(DialogFolder, PanelStandsWhereItsOptionsSay) {
    for (const DWORD option : {static_cast<DWORD>(FDO_IMPORTFOLDER), kBoth}) {
        TestDialog dialog(m_folder, option);
        Run(dialog, [&](Driver& user) {
            const HWND open = ::GetDlgItem(dialog.Frame(), IDOK);
            CRect cancel;
            CRect panel;
            ::GetWindowRect(::GetDlgItem(dialog.Frame(), IDCANCEL), cancel);
            ::GetWindowRect(dialog.m_wndForderImport.m_hWnd, panel);
            EXPECT_EQ(option == kBoth, ::IsWindowVisible(open) != FALSE);
            if (option == kBoth) {
                EXPECT_EQ(CPoint(cancel.left, cancel.bottom + 4), panel.TopLeft());
                EXPECT_EQ(cancel.Size(), panel.Size());
                EXPECT_GE(panel.Width(), 90);
            } else {
                EXPECT_EQ(cancel.left, panel.left);
                EXPECT_LT(panel.top, cancel.top);
            }
            user.click(dialog.Frame(), IDCANCEL);
        });
    }
}

} // namespace panels_test
