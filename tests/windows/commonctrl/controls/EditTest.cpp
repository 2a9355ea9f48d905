// Edits and statics: frame, colours of each state, place of the text, scroll bars, styles of statics.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

// The pixels of the window with its frame at (x, y).
COLORREF FramePixel(HWND wnd, int x, int y) {
    Pump();
    return Picture::ofWindow(wnd).at(x, y);
}

} // namespace

TEST_F(Controls, EditFrameAndFocus) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND edit = dialog.Item(IDC_EDIT);
    ::SetFocus(dialog.Item(IDC_PUSH));
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_OUTER), FramePixel(edit, 5, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_INNER), FramePixel(edit, 5, 1));
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), FramePixel(edit, 3, 3));
    ::SetFocus(edit);
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), FramePixel(edit, 5, 1));
    ::SetFocus(dialog.Item(IDC_PUSH));
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_INNER), FramePixel(edit, 5, 1));
    EXPECT_EQ(0u, ::GetWindowLongPtrW(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    dialog.DestroyWindow();
}

TEST_F(Controls, CtrlASelectsAll) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    for (const int id : {IDC_EDIT, IDC_EDIT_READONLY}) {
        const HWND edit = dialog.Item(id);
        dialog.SetDlgItemText(id, L"all of it");
        ::SendMessageW(edit, EM_SETSEL, 2, 3);
        ::SendMessageW(edit, WM_CHAR, 1, 1); // what Ctrl+A makes
        DWORD from = 9, to = 0;
        ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        EXPECT_EQ(0u, from) << id;
        EXPECT_EQ(9u, to) << id;
    }
    dialog.DestroyWindow();
}

TEST_F(Controls, EditColoursOfEachState) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    for (const int id : {IDC_EDIT, IDC_EDIT_READONLY, IDC_EDIT_OFF})
        dialog.SetDlgItemText(id, L"HHHHHHHH");
    struct Row {
        int id;
        int ground;
        int text;
    };
    for (const Row& row :
         {Row{IDC_EDIT, QVCLR_LIST, QVCLR_TEXT}, Row{IDC_EDIT_READONLY, QVCLR_WINDOW, QVCLR_TEXT_LIST},
          Row{IDC_EDIT_OFF, QVCLR_CTRL_DISABLED, QVCLR_TEXT_DISABLED}}) {
        ::SetFocus(dialog.Item(IDC_PUSH));
        const Picture shot = Shot(dialog.Item(row.id));
        const int all = shot.width() * shot.height();
        EXPECT_GT(shot.count(QV_GetSysColor(row.ground)), all / 2) << row.id;
        EXPECT_GT(shot.count(QV_GetSysColor(row.text)), 30) << row.id;
    }
    dialog.DestroyWindow();
}

TEST_F(Controls, EditChangesItsState) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND edit = dialog.Item(IDC_EDIT);
    ::SendMessageW(edit, EM_SETREADONLY, TRUE, 0);
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), FramePixel(edit, 3, 3));
    ::SendMessageW(edit, EM_SETREADONLY, FALSE, 0);
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), FramePixel(edit, 3, 3));
    ::EnableWindow(edit, FALSE);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_DISABLED), FramePixel(edit, 3, 3));
    ::SetWindowTextW(edit, L"HHHHHHHH");
    EXPECT_GT(Shot(edit).count(QV_GetSysColor(QVCLR_TEXT_DISABLED)), 30) << "a text set while disabled";
    dialog.DestroyWindow();
}

TEST_F(Controls, EditTextStandsInTheMiddle) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    ::SetFocus(dialog.Item(IDC_PUSH));
    const HWND edit = dialog.Item(IDC_EDIT);
    ::SetWindowTextW(edit, L"HHHH");
    Pump();
    const Picture shot = Picture::ofWindow(edit);
    const COLORREF text = QV_GetSysColor(QVCLR_TEXT);
    int first = -1, last = -1;
    for (int y = 2; y < shot.height() - 2; ++y) {
        if (shot.count(text, {2, y, shot.width() - 2, y + 1}) > 0) {
            first = first < 0 ? y : first;
            last = y;
        }
    }
    ASSERT_GT(first, 0);
    EXPECT_NEAR(first, shot.height() - 1 - last, 2) << "as much above as below";
    dialog.DestroyWindow();
}

TEST_F(Controls, EditTakesClicksBesideItsText) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND edit = dialog.Item(IDC_EDIT);
    CRect window;
    ::GetWindowRect(edit, window);
    EXPECT_EQ(HTCLIENT, ::SendMessageW(edit, WM_NCHITTEST, 0, MAKELPARAM(window.left + 3, window.top + 3)));
    dialog.DestroyWindow();
}

TEST_F(Controls, EditOfSeveralLinesHasSkinnedScrollBars) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    QVReplaceData data;
    EXPECT_TRUE(QV_GetReplaceData(dialog.Item(IDC_EDIT_LINES), data));
    EXPECT_FALSE(QV_GetReplaceData(dialog.Item(IDC_EDIT), data));
    dialog.DestroyWindow();
}

TEST_F(Controls, EditCreatedByItsClass) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CQVEdit edit;
    ASSERT_TRUE(edit.CreateEx(WS_EX_CLIENTEDGE, L"Edit", L"", WS_CHILD | WS_VISIBLE, CRect(10, 70, 110, 92),
                              &dialog, 111));
    Pump();
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_INNER), FramePixel(edit, 5, 1));
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), FramePixel(edit, 50, 10));
    edit.DestroyWindow();
    CQVEdit plain; // without a border there is no frame
    ASSERT_TRUE(plain.Create(WS_CHILD | WS_VISIBLE, CRect(10, 70, 110, 92), &dialog, 112));
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), FramePixel(plain, 5, 1));
    dialog.DestroyWindow();
}

TEST_F(Controls, TypingIntoAnEdit) {
    TestDialog dialog(IDD_SMALL);
    qvtest::ModalScript script;
    script.step("type", [&](Driver& user) {
        const HWND box = user.waitWindow({.title = L"Small"});
        const HWND edit = qvtest::findControl(box, IDC_EDIT);
        user.replaceText(edit, L"clip 7 片段");
        user.waitText(edit, L"clip 7 片段");
        user.onUi([&] { dialog.EndDialog(IDABORT); });
    });
    EXPECT_EQ(IDABORT, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, StaticColoursByIndex) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    auto* label = dynamic_cast<CQVStatic*>(CWnd::FromHandlePermanent(dialog.Item(IDC_LABEL)));
    ASSERT_NE(nullptr, label);
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), Shot(*label).at(80, 5));
    label->SetBkColorIndex(QVCLR_SELECTION);
    label->SetTextColorIndex(QVCLR_TEXT_SELECTED);
    const Picture shot = Shot(*label);
    EXPECT_EQ(QV_GetSysColor(QVCLR_SELECTION), shot.at(80, 5));
    EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_TEXT_SELECTED)), 5);
    label->SetBkColorIndex(-1);
    label->SetTextColorIndex(-1);
    label->SetTextStyle(QVTEXT_LABEL);
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), Shot(*label).at(80, 5));
    ::EnableWindow(*label, FALSE);
    EXPECT_GT(Shot(*label).count(QV_GetSysColor(QVCLR_TEXT_DISABLED)), 5);
    label->SetWindowText(L"");
    EXPECT_EQ(1, Shot(*label).colours(All(Shot(*label)))) << "a new text shows at once";
    dialog.DestroyWindow();
}

TEST_F(Controls, StaticStyles) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    const auto shoot = [&](DWORD style, const wchar_t* text) {
        CQVStatic item;
        item.Create(text, WS_CHILD | WS_VISIBLE | style, CRect(4, 70, 64, 90), &dialog);
        const Picture shot = Shot(item);
        item.DestroyWindow();
        return shot;
    };
    const COLORREF ground = QV_GetSysColor(QVCLR_WINDOW), text = QV_GetSysColor(QVCLR_TEXT_WINDOW);
    const RECT leftHalf = {0, 0, 30, 20}, rightHalf = {30, 0, 60, 20}, lower = {0, 12, 60, 20},
               upper = {0, 0, 60, 6};
    EXPECT_EQ(0, shoot(SS_LEFT, L"HH").count(text, rightHalf));
    EXPECT_EQ(0, shoot(SS_RIGHT, L"HH").count(text, leftHalf));
    EXPECT_GT(shoot(SS_CENTER, L"HH").count(text, leftHalf), 0);
    EXPECT_EQ(0, shoot(SS_LEFT, L"HH").count(text, {0, 14, 60, 20}));
    EXPECT_GT(shoot(SS_LEFT | SS_CENTERIMAGE, L"HH").count(text, lower), 0);
    EXPECT_EQ(0, shoot(SS_LEFT | SS_CENTERIMAGE, L"HH").count(text, {0, 0, 60, 4}));
    EXPECT_GT(shoot(SS_LEFT, L"HH HH HH HH HH").count(text, lower), 0) << "wraps";
    EXPECT_EQ(0, shoot(SS_LEFT | SS_ENDELLIPSIS, L"HH HH HH HH HH").count(text, {0, 16, 60, 20}))
        << "does not wrap";
    EXPECT_NE(shoot(SS_LEFT, L"&File").hash(), shoot(SS_LEFT | SS_NOPREFIX, L"&File").hash());
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION_LINE), shoot(SS_ETCHEDHORZ, L"").at(10, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION_LINE), shoot(SS_BLACKFRAME, L"").at(0, 10));
    EXPECT_EQ(ground, shoot(SS_BLACKFRAME, L"").at(10, 10));
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), shoot(SS_WHITERECT, L"").at(10, 10));
    EXPECT_EQ(0, shoot(SS_LEFT, L"").count(text, upper));
    dialog.DestroyWindow();
}

} // namespace controls_test
