// The check combo box: marks beside their entries, mouse and keyboard, the notice when its list closes.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

class LayerDialog : public TestDialog {
  public:
    LayerDialog() : TestDialog(IDD_GALLERY) {}

    BOOL OnInitDialog() override {
        layers.SubclassDlgItem(IDC_CHECK_COMBO, this);
        CQVDialog::OnInitDialog();
        for (const wchar_t* name : {L"C", L"B", L"A"})
            layers.InsertString(0, name);
        return TRUE;
    }

    HWND List() {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        return layers.GetComboBoxInfo(&info) ? info.hwndList : nullptr;
    }
    CPoint Row(int row) {
        CRect rect;
        ::SendMessageW(List(), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        return rect.CenterPoint();
    }
    std::string Marks() const {
        std::string marks;
        for (int item = 0; item < layers.GetCount(); ++item)
            marks += layers.GetCheck(item) ? '1' : '0';
        return marks;
    }

    CQVCheckComboBox layers;
};

} // namespace

TEST_F(Controls, CheckMarksFollowTheirEntries) {
    LayerDialog dialog;
    dialog.Open();
    CQVCheckComboBox& layers = dialog.layers;
    EXPECT_EQ("000", dialog.Marks());
    EXPECT_TRUE(layers.SetCheck(1, TRUE));
    EXPECT_EQ("010", dialog.Marks());
    layers.InsertString(0, L"new");
    EXPECT_EQ("0010", dialog.Marks());
    layers.AddString(L"last");
    EXPECT_EQ("00100", dialog.Marks());
    layers.DeleteString(0);
    EXPECT_EQ("0100", dialog.Marks());
    layers.DeleteString(1);
    EXPECT_EQ("000", dialog.Marks());
    layers.SetCheck(0, 5);
    EXPECT_EQ(1, layers.GetCheck(0)) << "1 whatever was given";
    layers.CheckAll(TRUE);
    EXPECT_EQ("111", dialog.Marks());
    layers.CheckAll(FALSE);
    EXPECT_EQ("000", dialog.Marks());
    layers.CheckAll(7);
    EXPECT_EQ(1, layers.GetCheck(2)) << "1 whatever was given";
    layers.ResetContent();
    EXPECT_EQ("", dialog.Marks());
    EXPECT_EQ(0, layers.GetCheck(0));
    EXPECT_FALSE(layers.SetCheck(0, TRUE));
    EXPECT_FALSE(layers.SetCheck(-1, TRUE));
    EXPECT_TRUE(layers.GetText(0).IsEmpty());
    EXPECT_TRUE(layers.GetText(-1).IsEmpty());
    dialog.DestroyWindow();
}

TEST_F(Controls, CheckMarksFollowSortedEntries) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CQVCheckComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_SORT, CRect(4, 60, 104, 160),
                             &dialog, 9));
    combo.SetCheck(combo.AddString(L"m"), TRUE);
    combo.AddString(L"z");
    combo.AddString(L"a");
    EXPECT_EQ(0, combo.GetCheck(0));
    EXPECT_EQ(1, combo.GetCheck(1));
    EXPECT_EQ(CString(L"m"), combo.GetText(1));
    EXPECT_EQ(0, combo.GetCheck(2));
    dialog.DestroyWindow();
}

TEST_F(Controls, CheckComboShowsWhatIsChecked) {
    LayerDialog dialog;
    dialog.Open();
    const Picture none = Shot(dialog.layers);
    dialog.layers.SetCheck(0, TRUE);
    const Picture one = Shot(dialog.layers);
    EXPECT_NE(none.hash(), one.hash());
    dialog.layers.SetCheck(2, TRUE);
    EXPECT_NE(one.hash(), Shot(dialog.layers).hash());
    dialog.layers.SetCheck(2, FALSE);
    EXPECT_EQ(one.hash(), Shot(dialog.layers).hash());
    dialog.DestroyWindow();
}

TEST_F(Controls, CheckComboByMouse) {
    LayerDialog dialog;
    qvtest::ModalScript script;
    script.step("toggle by clicks", [&](Driver& user) {
        user.waitWindow({.title = L"控件一览"});
        user.clickAt(dialog.layers, {10, 8});
        user.waitFor("the list", [&] { return dialog.layers.GetDroppedState(); });
        user.clickAt(dialog.List(), dialog.Row(0));
        user.clickAt(dialog.List(), dialog.Row(2));
        EXPECT_EQ("101", dialog.Marks());
        user.clickAt(dialog.List(), dialog.Row(0));
        EXPECT_EQ("001", dialog.Marks());
        EXPECT_TRUE(dialog.layers.GetDroppedState()) << "the list stays open";
        EXPECT_EQ(0, dialog.closeUps);
        user.clickAt(dialog, {5, 200}); // elsewhere
        user.waitFor("the list to close", [&] { return !dialog.layers.GetDroppedState(); });
        EXPECT_EQ(1, dialog.closeUps);
        EXPECT_EQ(WPARAM{IDC_CHECK_COMBO}, dialog.closeUpId);
        user.onUi([&] { dialog.EndDialog(IDABORT); });
    });
    EXPECT_EQ(IDABORT, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, CheckComboByKeyboard) {
    LayerDialog dialog;
    qvtest::ModalScript script;
    script.step("toggle by the space bar", [&](Driver& user) {
        user.waitWindow({.title = L"控件一览"});
        user.onUi([&] { dialog.layers.SetFocus(); });
        user.press(VK_SPACE);
        EXPECT_TRUE(dialog.layers.GetDroppedState()) << "the space bar opens";
        user.press(VK_DOWN);
        user.press(VK_SPACE);
        user.press(VK_DOWN);
        user.press(VK_SPACE);
        EXPECT_EQ("110", dialog.Marks());
        user.press(VK_SPACE);
        EXPECT_EQ("100", dialog.Marks());
        user.enter();
        EXPECT_FALSE(dialog.layers.GetDroppedState());
        EXPECT_EQ(1, dialog.closeUps);
        user.press(VK_F4);
        user.escape();
        EXPECT_FALSE(dialog.layers.GetDroppedState());
        EXPECT_EQ(2, dialog.closeUps);
        EXPECT_EQ("100", dialog.Marks()) << "Escape takes nothing back";
        EXPECT_EQ(0, dialog.okCount + dialog.cancelCount);
        user.onUi([&] { dialog.EndDialog(IDABORT); });
    });
    EXPECT_EQ(IDABORT, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, CheckComboDestroyedWhileOpenTellsNothing) {
    LayerDialog dialog;
    dialog.Open();
    dialog.layers.SetFocus();
    dialog.layers.ShowDropDown(TRUE);
    dialog.layers.DestroyWindow();
    EXPECT_EQ(0, dialog.closeUps);
    dialog.DestroyWindow();
}

} // namespace controls_test
