// The panel of the import-folder button.
#include "PanelFixture.h"

namespace panels_test {

namespace {

class TestFolderPanel : public CQVForderImportWnd {
  public:
    using CQVForderImportWnd::m_btnImport;
    using CQVForderImportWnd::m_pOwnerDlg;

    CRect Button() {
        CRect rect;
        m_btnImport.GetWindowRect(&rect);
        ScreenToClient(rect);
        return rect;
    }
};

// A dialog object that wears a window of the test: what the panel sends arrives here.
class OwnerDialog : public CQVFileDialog {
  public:
    OwnerDialog() : CQVFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, 0, 0, FDO_IMPORTFOLDER) {}

    int requests = 0;
    WPARAM lastWParam = 1;
    LPARAM lastLParam = 1;
    LRESULT lastAnswer = -1;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT answer = CQVFileDialog::WindowProc(message, wParam, lParam);
        if (message == WM_QV_IMPORTFORDER) {
            ++requests;
            lastWParam = wParam;
            lastLParam = lParam;
            lastAnswer = answer;
        }
        return answer;
    }
};

class FolderPanel : public Panels {
  protected:
    void CreatePanel(TestFolderPanel& panel, const CRect& rect = CRect(10, 10, 100, 33)) {
        ASSERT_TRUE(panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, rect, &m_frame, 1000));
        Pump();
    }
};

} // namespace

TEST_F(FolderPanel, HasADisabledButton) {
    TestFolderPanel panel;
    CreatePanel(panel);
    EXPECT_EQ(kImportButton, panel.m_btnImport.GetDlgCtrlID());
    EXPECT_TRUE(panel.m_btnImport.IsWindowVisible());
    EXPECT_FALSE(panel.m_btnImport.IsWindowEnabled());
    EXPECT_EQ(QV_GetSysFont(QVFONT_UI)->GetSafeHandle(),
              reinterpret_cast<HGDIOBJ>(panel.m_btnImport.SendMessage(WM_GETFONT)));
    EXPECT_EQ(QV_LoadSysString(L"IDS_CAPTURERENDER_IMPORTFOLDER"),
              qvtest::textOf(panel.m_btnImport.GetSafeHwnd()).c_str());
    EXPECT_EQ(CSize(90, 23), panel.GetButtonSize());
}

TEST_F(FolderPanel, ButtonKeepsItsSizeAtTheCorner) {
    TestFolderPanel panel;
    CreatePanel(panel);
    EXPECT_EQ(CRect(0, 0, 90, 23), panel.Button());
    for (const CSize size : {CSize(300, 80), CSize(20, 5), CSize(0, 0)}) {
        panel.MoveWindow(30, 40, size.cx, size.cy);
        EXPECT_EQ(CRect(0, 0, 90, 23), panel.Button());
    }
}

TEST_F(FolderPanel, EnablingFollowsTheDialog) {
    TestFolderPanel panel;
    panel.EnableImport(TRUE); // no window yet: nothing happens
    CreatePanel(panel);
    EXPECT_FALSE(panel.m_btnImport.IsWindowEnabled());
    panel.EnableImport(TRUE);
    EXPECT_TRUE(panel.m_btnImport.IsWindowEnabled());
    panel.EnableImport(FALSE);
    EXPECT_FALSE(panel.m_btnImport.IsWindowEnabled());
}

TEST_F(FolderPanel, ClickAsksTheDialogOnce) {
    TestFolderPanel panel;
    CreatePanel(panel);
    panel.EnableImport(TRUE);
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 10, 10), &m_frame, 7));
    OwnerDialog owner;
    ASSERT_TRUE(owner.SubclassWindow(window.Detach()));
    panel.SetOwnerDlg(&owner);
    panel.m_btnImport.SendMessage(BM_CLICK);
    EXPECT_EQ(1, owner.requests);
    EXPECT_EQ(0u, owner.lastWParam);
    EXPECT_EQ(0, owner.lastLParam);
    EXPECT_EQ(1, owner.lastAnswer) << "no folder is selected: refused";
    EXPECT_EQ(eSelFile, owner.GetSelTpye());

    panel.EnableImport(FALSE);
    const CRect button = panel.Button();
    panel.m_btnImport.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    panel.m_btnImport.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    Pump();
    EXPECT_EQ(button, panel.Button());
    owner.DestroyWindow();
}

TEST_F(FolderPanel, ClickWithoutADialogDoesNothing) {
    TestFolderPanel panel;
    CreatePanel(panel);
    panel.EnableImport(TRUE);
    panel.m_btnImport.SendMessage(BM_CLICK);
    OwnerDialog owner; // a dialog that does not run
    panel.SetOwnerDlg(&owner);
    panel.m_btnImport.SendMessage(BM_CLICK);
    EXPECT_EQ(0, owner.requests);
    panel.SetOwnerDlg(nullptr);
    panel.m_btnImport.SendMessage(BM_CLICK);
    EXPECT_EQ(nullptr, panel.m_pOwnerDlg);
}

TEST_F(FolderPanel, PaintsItsGroundInEachSkin) {
    TestFolderPanel panel;
    CreatePanel(panel, CRect(10, 10, 150, 60));
    for (const wchar_t* skin : {L"dark", L"light", L"dark"}) {
        QV_SetSkinPath(SkinFolder(skin));
        const Picture shot = Shot(panel);
        for (const POINT at : {POINT{95, 5}, POINT{5, 30}, POINT{135, 45}, POINT{0, 0}, POINT{89, 22}})
            EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), shot.at(at.x, at.y)) << at.x << ", " << at.y;
    }
}

TEST_F(FolderPanel, PicturesInEachLook) {
    for (const wchar_t* skin : {L"dark", L"light"}) {
        for (const wchar_t* language : {L"zh-CN", L"en-US", L"de-DE", L"ja-JP"}) {
            QV_SetSkinPath(SkinFolder(skin));
            ASSERT_TRUE(QV_SetLanguage(language));
            TestFolderPanel panel;
            CreatePanel(panel);
            const Picture disabled = Shot(panel);
            panel.EnableImport(TRUE);
            const Picture enabled = Shot(panel);
            EXPECT_NE(0, disabled.differences(enabled));
            enabled.save(qvtest::picturePath(std::wstring(L"folder-panel-") + skin + L"-" + language));
        }
    }
}

TEST_F(FolderPanel, OpenAndCloseLeavesNothing) {
    expectNoLeak([&] {
        TestFolderPanel panel;
        CreatePanel(panel);
        panel.EnableImport(TRUE);
        Pump();
        panel.DestroyWindow();
        Pump();
    });
}

} // namespace panels_test
