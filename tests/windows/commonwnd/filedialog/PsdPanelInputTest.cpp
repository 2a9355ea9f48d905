// The panel of the layers worked by mouse and keyboard, and its look.
#include "PanelFixture.h"

namespace panels_test {

namespace {

HWND ListOf(CComboBox& combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    return combo.GetComboBoxInfo(&info) ? info.hwndList : nullptr;
}

POINT RowOf(Driver& user, HWND list, int row) {
    CRect rect;
    user.send(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return rect.CenterPoint();
}

class PanelInput : public Panels {
  protected:
    // Opens a combo box by a click on its arrow.
    static void Drop(Driver& user, CComboBox& combo) {
        CRect client;
        ::GetClientRect(combo, client);
        user.clickAt(combo, {client.right - 8, client.Height() / 2});
        user.waitFor("the list", [&] { return ::IsWindowVisible(ListOf(combo)) != FALSE; });
    }
    static void Pick(Driver& user, CComboBox& combo, int row) {
        const HWND list = ListOf(combo);
        user.clickAt(list, RowOf(user, list, row));
    }
    // Runs the frame's loop while the user acts on the panel.
    void Run(const std::function<void(Driver&)>& act) {
        ModalScript script;
        script.step("work the panel", [&](Driver& user) {
            user.waitWindow({.title = L"Panels"});
            act(user);
            user.onUi([&] { m_frame.Stop(); });
        });
        script.run([&] { m_frame.Run(); });
    }
};

} // namespace

TEST_F(PanelInput, TwoOfFiveLayersAreUnchecked) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"five.psd", {u"1", u"2", u"3", u"4", u"5"}).c_str());
    Run([&](Driver& user) {
        Drop(user, panel.m_cmbImportType);
        Pick(user, panel.m_cmbImportType, kByLayers);
        user.waitFor("import by layers", [&] { return !panel.IsCompileImportType(); });
        user.waitEnabled(panel.m_cmbLayer, true);
        Drop(user, panel.m_cmbLayer);
        Pick(user, panel.m_cmbLayer, 1); // 4
        Pick(user, panel.m_cmbLayer, 3); // 2
        EXPECT_TRUE(::IsWindowVisible(ListOf(panel.m_cmbLayer))) << "the list stays open";
        user.clickAt(m_frame, {5, 150});
        user.waitGone(ListOf(panel.m_cmbLayer));
    });
    EXPECT_EQ((Checks{1, 0, 1, 0, 1}), panel.LayerInfo());
}

TEST_F(PanelInput, ByKeyboard) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"three.psd", {u"1", u"2", u"3"}).c_str());
    Run([&](Driver& user) {
        user.onUi([&] { panel.m_cmbImportType.SetFocus(); });
        user.press(VK_DOWN);
        user.waitFor("import by layers", [&] { return !panel.IsCompileImportType(); });
        user.onUi([&] { panel.m_cmbLayer.SetFocus(); });
        user.press(VK_SPACE); // opens
        user.press(VK_DOWN);
        user.press(VK_SPACE); // unchecks 2
        user.enter();
        user.waitGone(ListOf(panel.m_cmbLayer));
    });
    EXPECT_EQ((Checks{1, 0, 1}), panel.LayerInfo());
}

TEST_F(PanelInput, BackToRenderingByMouse) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"three.psd", {u"1", u"2", u"3"}).c_str());
    Run([&](Driver& user) {
        Drop(user, panel.m_cmbImportType);
        Pick(user, panel.m_cmbImportType, kByLayers);
        user.waitEnabled(panel.m_cmbLayer, true);
        Drop(user, panel.m_cmbImportType);
        Pick(user, panel.m_cmbImportType, kRender);
        user.waitEnabled(panel.m_cmbLayer, false);
    });
    EXPECT_TRUE(panel.IsCompileImportType());
}

TEST_F(PanelInput, PaintsItsGroundInEachSkin) {
    TestPsdPanel panel;
    Create(panel);
    for (const wchar_t* skin : {L"dark", L"light", L"dark"}) {
        QV_SetSkinPath(SkinFolder(skin));
        const Picture shot = Shot(panel);
        const COLORREF ground = QV_GetSysColor(QVCLR_WINDOW);
        for (const POINT at : {POINT{2, 2}, POINT{500, 25}, POINT{100, 55}, POINT{180, 10}})
            EXPECT_EQ(ground, shot.at(at.x, at.y)) << at.x << ", " << at.y;
        // The labels' own ground, beside their text.
        EXPECT_EQ(ground, shot.at(99, 1));
        EXPECT_EQ(ground, shot.at(99, 31));
        // Round the corners of the combo boxes.
        EXPECT_EQ(ground, shot.at(192, 0));
        EXPECT_EQ(ground, shot.at(438, 49));
    }
}

TEST_F(PanelInput, PicturesInEachLook) {
    const std::wstring path =
        Document(L"film.psd", {u"Background", u"\u4EBA\u7269", u"Title", u"Logo \u5B57\u5E55", u"Curves"});
    for (const wchar_t* skin : {L"dark", L"light"}) {
        for (const wchar_t* language : {L"zh-CN", L"en-US", L"de-DE", L"ja-JP"}) {
            QV_SetSkinPath(SkinFolder(skin));
            ASSERT_TRUE(QV_SetLanguage(language));
            TestPsdPanel panel;
            Create(panel);
            panel.ReadPsdFile(path.c_str());
            panel.Choose(kByLayers);
            panel.CloseListWith("10110");
            const Picture shot = Shot(panel);
            EXPECT_GT(shot.colours({192, 30, 439, 50}), 2) << "the checked layers' names";
            shot.save(qvtest::picturePath(std::wstring(L"psd-panel-") + skin + L"-" + language));
            panel.m_cmbLayer.ShowDropDown(TRUE);
            Shot(ListOf(panel.m_cmbLayer))
                .save(qvtest::picturePath(std::wstring(L"psd-list-") + skin + L"-" + language));
            panel.m_cmbLayer.ShowDropDown(FALSE);
        }
    }
}

} // namespace panels_test
