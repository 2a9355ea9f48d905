// The skinned frame of a dialog: size, pixels, dragging, closing, texts, activation.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

CRect WindowRectOf(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(rect);
    return rect;
}

// The middle of the close button in screen pixels.
CPoint CloseButton(const TestDialog& dialog) {
    const CQVCaptionBand band;
    const CRect window = WindowRectOf(dialog);
    return band.GetCloseRect(window, QV_GetWindowDpi(dialog)).CenterPoint();
}

POINT ToClient(const CWnd& wnd, CPoint screen) {
    wnd.ScreenToClient(&screen);
    return screen;
}

// A dialog that is driven by real input while a modal loop runs.
class ModalDialog : public TestDialog {
  public:
    explicit ModalDialog(UINT templateId) : TestDialog(templateId) {}
    void OnOK() override { CDialog::OnOK(); }
    void OnCancel() override { CDialog::OnCancel(); }
};

} // namespace

TEST_F(Controls, ClientAreaIsTheTemplates) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_TRUE(client.Size() == dialog.TemplateSize());
    const CRect edges = dialog.GetFrameEdges();
    EXPECT_TRUE(edges == CRect(2, 28, 2, 2));
    const CRect window = WindowRectOf(dialog);
    EXPECT_EQ(client.Width() + edges.left + edges.right, window.Width());
    EXPECT_EQ(client.Height() + edges.top + edges.bottom, window.Height());
    dialog.DestroyWindow();
}

TEST_F(Controls, FramePixelsOfTheActiveWindow) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    const Picture shot = WindowShot(dialog);
    const int right = shot.width() - 1, bottom = shot.height() - 1;
    for (const CPoint outer : {CPoint(0, 0), CPoint(right, 0), CPoint(0, bottom), CPoint(right, bottom)})
        EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), shot.at(outer.x, outer.y));
    for (const CPoint inner :
         {CPoint(1, 1), CPoint(right - 1, 50), CPoint(1, bottom - 1), CPoint(90, bottom - 1)})
        EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_INNER), shot.at(inner.x, inner.y));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION), shot.at(shot.width() / 2, 10));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION_LINE), shot.at(shot.width() / 2, 27));
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), shot.at(4, 30));
    EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_TEXT_WINDOW), {10, 4, 60, 26}), 10) << "caption text";
    dialog.DestroyWindow();
}

TEST_F(Controls, CaptionShowsANewText) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    const Picture before = WindowShot(dialog);
    dialog.SetWindowText(L"");
    const Picture without = Picture::ofWindow(dialog); // at once, not with the next paint
    EXPECT_NE(before.hash(), without.hash());
    EXPECT_EQ(1, without.colours({10, 4, 100, 26}));
    dialog.SetWindowText(L"Small");
    EXPECT_EQ(before.hash(), Picture::ofWindow(dialog).hash());
    dialog.DestroyWindow();
}

TEST_F(Controls, InactiveFrameLooksDifferent) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    const Picture active = WindowShot(dialog);
    dialog.SendMessage(WM_NCACTIVATE, FALSE);
    const Picture inactive = Picture::ofWindow(dialog);
    EXPECT_GT(active.differences(inactive), 0);
    dialog.SendMessage(WM_NCACTIVATE, TRUE);
    EXPECT_EQ(active.hash(), Picture::ofWindow(dialog).hash());
    dialog.DestroyWindow();
}

TEST_F(Controls, DraggedByItsCaption) {
    ModalDialog dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("drag", [&](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        user.settle();
        CRect before;
        ::GetWindowRect(box, before);
        user.drag(box, {40, -14}, {130, 66});
        user.waitFor("the window to move", [&] {
            CRect now;
            ::GetWindowRect(box, now);
            return now.TopLeft() == before.TopLeft() + CSize(90, 80);
        });
        CRect after;
        ::GetWindowRect(box, after);
        EXPECT_TRUE(after.Size() == before.Size());
        user.escape();
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, ClosedByItsButton) {
    ModalDialog dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("hover, leave, press beside, click", [&](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        user.settle();
        CPoint on = CloseButton(dialog);
        user.hover(box, ToClient(dialog, on));
        user.waitFor("the hot colour", [&] {
            const Picture shot = Picture::ofScreen(CRect(on.x - 9, on.y - 5, on.x - 7, on.y - 3));
            return shot.at(0, 0) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE + 1);
        });
        user.hover(box, {20, 20});
        user.waitFor("the normal colour", [&] {
            const Picture shot = Picture::ofScreen(CRect(on.x - 9, on.y - 5, on.x - 7, on.y - 3));
            return shot.at(0, 0) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE);
        });
        user.drag(box, ToClient(dialog, on), {20, 20}); // let go elsewhere: stays open
        EXPECT_TRUE(::IsWindowVisible(box));
        user.clickAt(box, ToClient(dialog, on));
        user.waitGone(box);
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, ClosedByAltF4) {
    ModalDialog dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("Alt+F4", [&](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        user.settle();
        user.press(VK_F4, qvtest::Alt);
        user.waitGone(box);
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, GreyedCloseButtonTakesNoClick) {
    ModalDialog dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("click the greyed button", [&](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        user.onUi([&] {
            ::EnableMenuItem(::GetSystemMenu(box, FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
            ::SendMessageW(box, WM_NCPAINT, 1, 0);
        });
        const CPoint on = CloseButton(dialog);
        user.waitFor("the disabled colour", [&] {
            const Picture shot = Picture::ofScreen(CRect(on.x - 9, on.y - 5, on.x - 7, on.y - 3));
            return shot.at(0, 0) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE + 3);
        });
        user.clickAt(box, ToClient(dialog, on));
        user.press(VK_F4, qvtest::Alt);
        user.settle();
        EXPECT_TRUE(::IsWindowVisible(box));
        user.escape();
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, WindowWithoutCaptionHasTheFrameOnly) {
    TestDialog dialog(IDD_PLAIN);
    dialog.Open();
    EXPECT_TRUE(dialog.GetFrameEdges() == CRect(2, 2, 2, 2));
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_TRUE(client.Size() == dialog.TemplateSize());
    const Picture shot = WindowShot(dialog);
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), shot.at(0, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_INNER), shot.at(1, 1));
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), shot.at(3, 3));
    dialog.DestroyWindow();
}

TEST_F(Controls, ChildPageHasNoFrame) {
    TestDialog parent(IDD_SMALL);
    parent.Open();
    TestDialog page(IDD_PAGE);
    ASSERT_TRUE(page.Create(IDD_PAGE, &parent));
    EXPECT_TRUE(page.GetFrameEdges() == CRect(0, 0, 0, 0));
    CRect client;
    page.GetClientRect(client);
    EXPECT_TRUE(client.Size() == page.TemplateSize());
    parent.DestroyWindow();
}

TEST_F(Controls, AnchoredChildrenFollow) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    const CRect text = dialog.ItemRect(IDC_LABEL), yes = dialog.ItemRect(IDOK),
                ask = dialog.ItemRect(IDC_CHECK1);
    dialog.SetAutoSize(TRUE, nullptr, 0);
    dialog.SetChildWindow(dialog.GetDlgItem(IDC_CHECK1), QVANCHOR_BOTTOM_LEFT, QVANCHOR_KEEP_SIZE);
    dialog.SetChildWindow(dialog.GetDlgItem(IDOK), QVANCHOR_BOTTOM_RIGHT, QVANCHOR_KEEP_SIZE);
    dialog.SetChildWindow(dialog.GetDlgItem(IDC_LABEL), QVANCHOR_FILL, QVANCHOR_RESIZE);
    CRect window = WindowRectOf(dialog);
    const auto resize = [&](int dx, int dy) {
        dialog.SetWindowPos(nullptr, 0, 0, window.Width() + dx, window.Height() + dy,
                            SWP_NOMOVE | SWP_NOZORDER);
    };
    resize(70, 50);
    EXPECT_TRUE(dialog.ItemRect(IDC_CHECK1) == ask + CSize(0, 50));
    EXPECT_TRUE(dialog.ItemRect(IDOK) == yes + CSize(70, 50));
    EXPECT_TRUE(dialog.ItemRect(IDC_LABEL) == CRect(text.left, text.top, text.right + 70, text.bottom + 50));
    resize(-4000, -4000); // smaller than anything
    resize(0, 0);
    EXPECT_TRUE(dialog.ItemRect(IDOK) == yes) << "there and back";
    EXPECT_TRUE(dialog.ItemRect(IDC_LABEL) == text);
    dialog.SetAutoSize(FALSE, nullptr, 0);
    resize(33, 22);
    EXPECT_TRUE(dialog.ItemRect(IDOK) == yes) << "switched off";
    dialog.DestroyWindow();
}

TEST_F(Controls, AnchoringForeignAndDeadWindowsIsHarmless) {
    TestDialog dialog(IDD_SMALL);
    dialog.SetChildWindow(nullptr, QVANCHOR_FILL, 0); // no window yet
    dialog.SetAutoSize(TRUE, nullptr, 0);
    dialog.Open();
    dialog.SetAutoSize(TRUE, nullptr, 0);
    dialog.SetChildWindow(nullptr, QVANCHOR_FILL, 0);
    dialog.SetChildWindow(CWnd::GetDesktopWindow(), QVANCHOR_FILL, 0);
    dialog.SetChildWindow(dialog.GetDlgItem(IDCANCEL), QVANCHOR_BOTTOM_RIGHT, 0);
    dialog.SetChildWindow(dialog.GetDlgItem(IDCANCEL), QVANCHOR_TOP_LEFT, 0); // the second call counts
    const CRect place = dialog.ItemRect(IDCANCEL);
    ::DestroyWindow(dialog.Item(IDC_LABEL));
    dialog.SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(dialog.ItemRect(IDCANCEL) == place);
    ::DestroyWindow(dialog.Item(IDCANCEL));
    dialog.SetWindowPos(nullptr, 0, 0, 600, 450, SWP_NOMOVE | SWP_NOZORDER);
    dialog.DestroyWindow();
}

} // namespace controls_test
