// The panel of the layers in the running dialog: when it shows, how the frame grows, what is answered afterwards.
#include "RunningDialog.h"

namespace panels_test {

namespace {

constexpr DWORD kAllowPanel = 2;
constexpr int kPanelHeightPx = 60;

class DialogPsd : public RunningDialog {
  protected:
    void SetUp() override {
        RunningDialog::SetUp();
        Document(L"abc.psd", {u"A", u"B", u"C"});
        Document(L"Second.PSD", {u"1", u"2"});
        m_folder.file(L"broken.psd", "8BPS");
        m_folder.file(L"plain.txt", "text");
        m_folder.folder(L"takes");
    }
    static void Choose(Driver& user, TestDialog& dialog, int importType) {
        const HWND panel = dialog.m_wndPsdOption.m_hWnd;
        const HWND combo = ::GetDlgItem(panel, kImportTypeCombo);
        user.send(combo, CB_SETCURSEL, static_cast<WPARAM>(importType));
        user.send(panel, WM_COMMAND, MAKEWPARAM(kImportTypeCombo, CBN_SELCHANGE),
                  reinterpret_cast<LPARAM>(combo));
    }
    static Names LayerNames(CQVFileDialog& dialog) {
        CStringArray stored;
        dialog.GetImportLayerName(stored);
        Names names;
        for (INT_PTR i = 0; i < stored.GetSize(); ++i)
            names.emplace_back(stored.GetAt(i).GetString());
        return names;
    }
    static Checks LayerInfo(CQVFileDialog& dialog) {
        Checks checks;
        dialog.GetImportLayerInfo(checks);
        return checks;
    }
};

} // namespace

TEST_F(DialogPsd, FrameGrowsAndShrinksExactlyInAnyOrder) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    const struct {
        const wchar_t* item;
        bool shown;
    } kinds[] = {{L"abc.psd", true}, {L"plain.txt", false}, {L"Second.PSD", true},
                 {nullptr, false},   {L"broken.psd", true}, {L"takes", false}};
    EXPECT_EQ(IDCANCEL, Run(dialog, [&](Driver& user) {
                  const int height = dialog.Height();
                  EXPECT_FALSE(dialog.PsdShown());
                  // Every kind follows every kind.
                  for (const auto& first : kinds) {
                      for (const auto& second : kinds) {
                          for (const auto& each : {first, second}) {
                              Select(user, dialog, each.item);
                              EXPECT_EQ(each.shown, dialog.PsdShown());
                              EXPECT_EQ(height + (each.shown ? kPanelHeightPx : 0), dialog.Height());
                          }
                      }
                  }
                  user.click(dialog.Frame(), IDCANCEL);
              }));
}

TEST_F(DialogPsd, PanelStandsAtTheFormerBottom) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    Run(dialog, [&](Driver& user) {
        CRect client;
        ::GetClientRect(dialog.Frame(), client);
        Select(user, dialog, L"abc.psd");
        CRect panel;
        ::GetWindowRect(dialog.m_wndPsdOption.m_hWnd, panel);
        ::MapWindowPoints(nullptr, dialog.Frame(), reinterpret_cast<POINT*>(&panel), 2);
        EXPECT_EQ(CRect(client.left + 2, client.bottom - 7, client.right - 2, client.bottom + 50), panel);
        EXPECT_EQ(kLayerLabel, ::GetDlgCtrlID(dialog.m_wndPsdOption.m_hWnd)) << "both are child 10001";
        user.click(dialog.Frame(), IDCANCEL);
    });
}

TEST_F(DialogPsd, NeverShownUnlessTheHostAllowsIt) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(1);
    Run(dialog, [&](Driver& user) {
        const int height = dialog.Height();
        for (const wchar_t* item : {L"abc.psd", L"plain.txt", L"Second.PSD"}) {
            Select(user, dialog, item);
            EXPECT_FALSE(dialog.PsdShown());
            EXPECT_EQ(height, dialog.Height());
        }
        user.click(dialog.Frame(), IDCANCEL);
    });
}

TEST_F(DialogPsd, LayersAreChosenByKeyboardAlone) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"abc.psd");
                  const HWND panel = dialog.m_wndPsdOption.m_hWnd;
                  const HWND layers = ::GetDlgItem(panel, kLayerCombo);
                  TabTo(user, dialog, ::GetDlgItem(panel, kImportTypeCombo));
                  user.press(VK_DOWN);
                  user.waitEnabled(layers, true);
                  TabTo(user, dialog, layers);
                  user.press(VK_SPACE);
                  user.waitFor("the open list", [&] { return user.send(layers, CB_GETDROPPEDSTATE) != 0; });
                  user.press(VK_DOWN);
                  user.press(VK_DOWN);
                  user.press(VK_SPACE); // A: the topmost layer stands first
                  user.enter();
                  user.click(dialog.Frame(), IDOK);
              }));
    EXPECT_FALSE(dialog.IsCompileImportType());
    EXPECT_EQ((Checks{0, 1, 1}), LayerInfo(dialog));
}

// Neither a hidden panel nor one without a control to go to holds the keyboard up.
TEST_F(DialogPsd, TabKeyPassesTheHiddenPanel) {
    TestDialog dialog(m_folder, FDO_KEEPOK | FDO_IMPORTFOLDER);
    dialog.EnableLayerInfo(kAllowPanel);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"plain.txt");
                  EXPECT_FALSE(dialog.PsdShown());
                  for (const int id : {IDCANCEL, IDOK})
                      TabTo(user, dialog, ::GetDlgItem(dialog.Frame(), id));
                  user.click(dialog.Frame(), IDCANCEL);
              }));
}

TEST_F(DialogPsd, AnswersTheCheckedLayers) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"abc.psd");
                  Choose(user, dialog, kByLayers);
                  const HWND layers = ::GetDlgItem(dialog.m_wndPsdOption.m_hWnd, kLayerCombo);
                  user.waitEnabled(layers, true);
                  user.onUi([&] { ::SetFocus(layers); });
                  user.press(VK_SPACE); // opens
                  user.press(VK_DOWN);
                  user.press(VK_SPACE); // B
                  user.enter();
                  user.click(dialog.Frame(), IDOK);
              }));
    EXPECT_EQ(eSelFile, dialog.GetSelTpye());
    EXPECT_EQ(CString(m_folder.path(L"abc.psd").c_str()), dialog.GetPathName());
    EXPECT_FALSE(dialog.IsCompileImportType());
    EXPECT_EQ((Names{L"A", L"B", L"C"}), LayerNames(dialog));
    EXPECT_EQ((Checks{1, 0, 1}), LayerInfo(dialog));
}

TEST_F(DialogPsd, KindOfImportStaysBetweenDocuments) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"abc.psd");
                  Choose(user, dialog, kByLayers);
                  Select(user, dialog, L"plain.txt");
                  Select(user, dialog, L"Second.PSD");
                  EXPECT_FALSE(dialog.IsCompileImportType());
                  EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialog.m_wndPsdOption.m_hWnd, kLayerCombo)));
                  user.click(dialog.Frame(), IDOK);
              }));
    EXPECT_EQ((Names{L"1", L"2"}), LayerNames(dialog));
    EXPECT_EQ((Checks{1, 1}), LayerInfo(dialog));
}

TEST_F(DialogPsd, UnreadableDocumentShowsThePanelAllTheSame) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    EXPECT_EQ(IDOK, Run(dialog, [&](Driver& user) {
                  Select(user, dialog, L"abc.psd");
                  Select(user, dialog, L"broken.psd");
                  EXPECT_TRUE(dialog.PsdShown());
                  user.click(dialog.Frame(), IDOK);
              }));
    EXPECT_TRUE(LayerNames(dialog).empty());
    EXPECT_EQ((Checks{1, 1, 1}), LayerInfo(dialog)) << "of the document before";
}

TEST_F(DialogPsd, RunsAgainWithoutThePanel) {
    TestDialog dialog(m_folder, FDO_KEEPOK);
    dialog.EnableLayerInfo(kAllowPanel);
    int first = 0;
    for (int run = 0; run < 2; ++run) {
        Run(dialog, [&](Driver& user) {
            EXPECT_FALSE(dialog.PsdShown());
            if (run == 0)
                first = dialog.Height();
            EXPECT_EQ(first, dialog.Height());
            Select(user, dialog, L"abc.psd");
            EXPECT_EQ(first + kPanelHeightPx, dialog.Height());
            user.click(dialog.Frame(), IDCANCEL);
        });
    }
}

} // namespace panels_test
