// Push buttons, check boxes, radio buttons, group boxes: pixels of each state, keyboard, images.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

CQVButton* ButtonOf(const TestDialog& dialog, int id) {
    return dynamic_cast<CQVButton*>(CWnd::FromHandlePermanent(dialog.Item(id)));
}

} // namespace

TEST_F(Controls, ButtonsOfATemplateAreSkinned) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    for (const int id : {IDOK, IDCANCEL, IDC_OFF, IDC_CHECK1, IDC_RADIO1, IDC_GROUP})
        EXPECT_NE(nullptr, ButtonOf(dialog, id)) << id;
    dialog.DestroyWindow();
}

TEST_F(Controls, PushButtonStates) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND button = dialog.Item(IDC_PUSH);
    const auto fill = [&](HWND wnd) { return Shot(wnd).at(6, 4); };
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), fill(button));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_BORDER), Shot(button).at(20, 0));
    ::SendMessageW(button, BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_PRESSED), Picture::ofClient(button).at(6, 4)) << "painted at once";
    ::SendMessageW(button, BM_SETSTATE, FALSE, 0);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), fill(button));
    ::EnableWindow(button, FALSE);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_DISABLED), fill(button));
    EXPECT_GT(Shot(button).count(QV_GetSysColor(QVCLR_TEXT_DISABLED)), 5);
    EXPECT_EQ(0, Shot(button).count(QV_GetSysColor(QVCLR_TEXT_WINDOW)));
    ::EnableWindow(button, TRUE);
    ::SetFocus(button);
    const Picture focused = Shot(button);
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), focused.at(20, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), focused.at(20, 1)) << "the focus is two lines wide";
    EXPECT_NE(QV_GetSysColor(QVCLR_ACCENT), focused.at(20, 2));
    dialog.DestroyWindow();
}

TEST_F(Controls, HotPushButton) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND button = dialog.Item(IDC_PUSH);
    ::SendMessageW(button, WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
    ::UpdateWindow(button);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_HOT), Picture::ofClient(button).at(6, 4));
    ::SendMessageW(button, WM_MOUSELEAVE, 0, 0);
    ::UpdateWindow(button);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), Picture::ofClient(button).at(6, 4));
    dialog.DestroyWindow();
}

TEST_F(Controls, DefaultButtonHasTheAccent) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    ::SetFocus(dialog.Item(IDC_EDIT));
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), Shot(dialog.Item(IDOK)).at(20, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), Shot(dialog.Item(IDOK)).at(20, 2))
        << "one line, not the focus";
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_BORDER), Shot(dialog.Item(IDCANCEL)).at(20, 0));
    dialog.DestroyWindow();
}

TEST_F(Controls, CheckStateOfAPushButton) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    CQVButton* button = ButtonOf(dialog, IDC_PUSH);
    ASSERT_NE(nullptr, button);
    EXPECT_EQ(0, button->GetCheck());
    button->SetCheck(1);
    EXPECT_EQ(1, button->GetCheck());
    EXPECT_EQ(1, static_cast<CButton*>(button)->GetCheck()) << "by message, too";
    const Picture latched = Shot(*button);
    EXPECT_GT(latched.count(QV_GetSysColor(QVCLR_ACCENT)), latched.width() / 2);
    button->SetCheck(7);
    EXPECT_EQ(1, button->GetCheck());
    button->SetCheck(0);
    EXPECT_EQ(0, Shot(*button).count(QV_GetSysColor(QVCLR_ACCENT)));
    dialog.DestroyWindow();
}

TEST_F(Controls, CheckBoxStates) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND box = dialog.Item(IDC_CHECK3); // of three states
    Picture shots[3];
    for (int state = 0; state < 3; ++state) {
        ::SendMessageW(box, BM_SETCHECK, static_cast<WPARAM>(state), 0);
        EXPECT_EQ(state, ::SendMessageW(box, BM_GETCHECK, 0, 0));
        shots[state] = Shot(box);
    }
    const COLORREF accent = QV_GetSysColor(QVCLR_ACCENT);
    EXPECT_EQ(0, shots[0].count(accent));
    EXPECT_GT(shots[1].count(accent), 3);
    EXPECT_GT(shots[2].count(accent), 3);
    EXPECT_NE(shots[1].hash(), shots[2].hash());
    ::SetFocus(box);
    EXPECT_GT(Shot(box).count(accent), shots[2].count(accent) + 40) << "ring round the text";
    dialog.DestroyWindow();
}

TEST_F(Controls, RadioButtonsSwitchEachOtherOff) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND first = dialog.Item(IDC_RADIO1), second = dialog.Item(IDC_RADIO2);
    ::SendMessageW(first, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_CHECKED, ::SendMessageW(first, BM_GETCHECK, 0, 0));
    ::SendMessageW(second, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_UNCHECKED, ::SendMessageW(first, BM_GETCHECK, 0, 0));
    const COLORREF accent = QV_GetSysColor(QVCLR_ACCENT);
    EXPECT_GT(Shot(second).count(accent, {0, 0, 14, 30}), Shot(first).count(accent, {0, 0, 14, 30}));
    dialog.DestroyWindow();
}

TEST_F(Controls, GroupBoxLeavesItsControlsAlone) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    Shot(dialog);
    const Picture before = Shot(dialog.Item(IDOK));
    ::RedrawWindow(dialog.Item(IDC_GROUP), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(before.hash(), Picture::ofClient(dialog.Item(IDOK)).hash());
    const Picture group = Picture::ofClient(dialog.Item(IDC_GROUP));
    EXPECT_GT(group.count(QV_GetSysColor(QVCLR_CAPTION_LINE)), group.width());
    EXPECT_GT(group.count(QV_GetSysColor(QVCLR_TEXT_TITLE), {8, 0, 60, 16}), 5);
    dialog.DestroyWindow();
}

TEST_F(Controls, ImagesOfAButton) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    CQVButton* button = ButtonOf(dialog, IDC_ICON_BUTTON);
    ASSERT_NE(nullptr, button);
    const Picture text = Shot(*button);
    EXPECT_FALSE(button->SetImageList(L"Z:\\no such\\file.png", QVIMAGE_HAS_ALL));
    EXPECT_EQ(text.hash(), Shot(*button).hash()) << "the text stays";
    EXPECT_FALSE(button->SetImageList(nullptr, QVIMAGE_HAS_ALL));
    const CString file = QV_GetSkinPath() + L"\\OPAL\\Reset.png";
    EXPECT_FALSE(button->SetImageList(file, 0)) << "a strip without frames";
    EXPECT_TRUE(button->SetImageList(file, QVIMAGE_HAS_ALL));
    const Picture image = Shot(*button);
    EXPECT_NE(text.hash(), image.hash());
    ::EnableWindow(*button, FALSE);
    EXPECT_NE(image.hash(), Shot(*button).hash());
    ::EnableWindow(*button, TRUE);
    button->SetAutoSize(TRUE);
    CRect size;
    button->GetClientRect(size);
    CQVSkinImage* strip = QV_LoadImageEx(file, QVIMAGE_STATES, 0, 0);
    EXPECT_TRUE(size.Size() == QV_GetImageSize(strip));
    QV_ReleaseCommonRes(strip);
    dialog.DestroyWindow();
}

TEST_F(Controls, AutoSizeFollowsTheText) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    CQVButton* button = ButtonOf(dialog, IDC_PUSH);
    ASSERT_NE(nullptr, button);
    button->SetAutoSize(TRUE);
    CRect before;
    button->GetClientRect(before);
    button->SetWindowText(L"A text that is a good deal longer than before");
    CRect after;
    button->GetClientRect(after);
    EXPECT_GT(after.Width(), before.Width() + 100);
    EXPECT_EQ(after.Height(), before.Height());
    dialog.DestroyWindow();
}

TEST_F(Controls, ButtonsByKeyboard) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        void OnOK() override { CDialog::OnOK(); }
        void OnCancel() override { CDialog::OnCancel(); }
    } dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("keys", [](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        const HWND check = qvtest::findControl(box, IDC_CHECK1);
        user.waitFocus(qvtest::findControl(box, IDC_EDIT));
        user.press(VK_TAB);
        user.waitFocus(check);
        user.press(VK_SPACE);
        EXPECT_TRUE(user.checked(check));
        user.press('A', qvtest::Alt); // mnemonic of the check box
        EXPECT_FALSE(user.checked(check));
        user.press(VK_TAB);
        user.waitFocus(qvtest::findControl(box, IDOK));
        user.press(VK_TAB);
        user.waitFocus(qvtest::findControl(box, IDCANCEL));
        user.press(VK_TAB, qvtest::Shift);
        user.waitFocus(qvtest::findControl(box, IDOK));
        user.press('N', qvtest::Alt);
        user.waitGone(box);
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, EnterPressesTheDefaultButton) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        void OnOK() override { CDialog::OnOK(); }
        void OnCancel() override { CDialog::OnCancel(); }
    } dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("Enter in the edit", [](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        user.waitFocus(qvtest::findControl(box, IDC_EDIT));
        user.enter();
        user.waitGone(box);
    });
    EXPECT_EQ(IDOK, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, ClickByMouse) {
    TestDialog dialog(IDD_GALLERY);
    qvtest::ModalScript script;
    script.step("click", [&](Driver& user) {
        user.waitWindow({.title = L"控件一览"});
        user.click(dialog.Item(IDC_PUSH));
        user.waitFor("the notification", [&] { return dialog.clicks == 1; });
        user.onUi([&] { dialog.EndDialog(IDABORT); });
    });
    EXPECT_EQ(IDABORT, script.run([&] { return dialog.DoModal(); }));
}

} // namespace controls_test
