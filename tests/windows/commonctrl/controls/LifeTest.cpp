// Switching skins under open windows, texts through the dictionary, ownership, leaks, hostile use.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

const wchar_t* Translate(const wchar_t* text) {
    if (::lstrcmpW(text, L"Small") == 0)
        return L"Kleiner Dialog";
    if (::lstrcmpW(text, L"&Ask") == 0)
        return L"&Fragen";
    return nullptr; // leave as it is
}

class CountingControl : public CWnd, public CQVBaseCtrl {
  public:
    void OnSkinChange(UINT reason, HWND wnd) override {
        ++changes;
        lastReason = reason;
        lastWnd = wnd;
        CQVBaseCtrl::OnSkinChange(reason, wnd);
        if (killed)
            killed->DestroyWindow();
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == QV_GetSkinChangeMessage())
            ++messages;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    bool Make(CWnd* parent) {
        const bool made = CWnd::Create(L"Static", L"", WS_CHILD, CRect(0, 0, 5, 5), parent, 77) != FALSE;
        AttachSkin(this);
        return made;
    }

    int changes = 0;
    int messages = 0;
    UINT lastReason = 99;
    HWND lastWnd = nullptr;
    CWnd* killed = nullptr;
};

void OpenAndClose(UINT templateId) {
    TestDialog dialog(templateId);
    dialog.Open();
    dialog.DestroyWindow();
}

} // namespace

TEST_F(Controls, SkinSwitchReachesEveryOpenWindow) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    ::SetFocus(dialog.Item(IDC_PUSH));
    const Picture dark = WindowShot(dialog);
    ASSERT_TRUE(QV_SetSkinPath(SkinFolder(L"light")));
    const Picture light = Picture::ofWindow(dialog); // before any message is pumped
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), light.at(4, 32));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION), light.at(light.width() / 2, 10));
    EXPECT_EQ(light.hash(), WindowShot(dialog).hash()) << "nothing was left to paint";
    ASSERT_TRUE(QV_SetSkinPath(SkinFolder(L"dark")));
    EXPECT_EQ(dark.hash(), WindowShot(dialog).hash()) << "and back again";
    dialog.DestroyWindow();
}

TEST_F(Controls, FontsOfControlsOutliveASkinSwitch) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    dialog.GetDlgItem(IDC_LABEL)->SetFont(QV_GetSysFont(QVFONT_TITLE, 96));
    ASSERT_TRUE(QV_SetSkinPath(SkinFolder(L"light")));
    Pump();
    EXPECT_EQ(QV_GetSysFont(QVFONT_TITLE, 96)->GetSafeHandle(),
              dialog.GetDlgItem(IDC_LABEL)->GetFont()->GetSafeHandle());
    for (const int id : {IDOK, IDC_EDIT, IDC_LIST_COMBO, IDC_CHECK1, IDC_PROGRESS}) {
        const auto font = reinterpret_cast<HGDIOBJ>(::SendMessageW(dialog.Item(id), WM_GETFONT, 0, 0));
        EXPECT_TRUE(!font || ::GetObjectType(font) == OBJ_FONT) << id;
    }
    dialog.DestroyWindow();
}

TEST_F(Controls, SkinChangeCallsAndMessages) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CountingControl control;
    ASSERT_TRUE(control.Make(&dialog));
    QV_SetSkinPath(SkinFolder(L"light"));
    EXPECT_EQ(1, control.changes);
    EXPECT_EQ(1, control.messages);
    EXPECT_EQ(0u, control.lastReason);
    EXPECT_EQ(control.m_hWnd, control.lastWnd);
    control.DetachSkin();
    EXPECT_EQ(nullptr, control.GetSkinWnd());
    QV_SetSkinPath(SkinFolder(L"dark"));
    EXPECT_EQ(1, control.changes);
    control.AttachSkin(&control);
    control.AttachSkin(&control); // twice is once
    QV_SetSkinPath(SkinFolder(L"light"));
    EXPECT_EQ(2, control.changes);
    control.AttachSkin(nullptr);
    QV_SetSkinPath(SkinFolder(L"dark"));
    EXPECT_EQ(2, control.changes);
    dialog.DestroyWindow();
}

TEST_F(Controls, WindowsMayDieDuringASkinChange) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CountingControl first, second;
    ASSERT_TRUE(first.Make(&dialog));
    ASSERT_TRUE(second.Make(&dialog));
    first.killed = &second;
    QV_SetSkinPath(SkinFolder(L"light"));
    EXPECT_EQ(1, first.changes);
    EXPECT_EQ(0, second.changes);
    CountingControl last;
    ASSERT_TRUE(last.Make(&dialog));
    last.killed = &last; // itself
    QV_SetSkinPath(SkinFolder(L"dark"));
    EXPECT_EQ(1, last.changes);
    dialog.DestroyWindow();
}

TEST_F(Controls, TemplateTextsPassTheDictionary) {
    QV_SetDictCallBack(Translate);
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    QV_SetDictCallBack(nullptr);
    EXPECT_EQ(L"Kleiner Dialog", qvtest::textOf(dialog));
    EXPECT_EQ(L"&Fragen", qvtest::textOf(dialog.Item(IDC_CHECK1)));
    EXPECT_EQ(L"Text", qvtest::textOf(dialog.Item(IDC_LABEL)));
    dialog.DestroyWindow();
}

TEST_F(Controls, WhatTheUserEnteredIsNotTranslated) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        void DoDataExchange(CDataExchange* dx) override {
            TestDialog::DoDataExchange(dx);
            DDX_Text(dx, IDC_EDIT, text);
        }
        CString text = L"Small";
    } dialog(IDD_SMALL);
    QV_SetDictCallBack(Translate);
    dialog.Open();
    EXPECT_EQ(L"Small", qvtest::textOf(dialog.Item(IDC_EDIT)));
    dialog.DestroyWindow();
}

TEST_F(Controls, ControlsOfADerivedDialogAreLeftToIt) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        void DoDataExchange(CDataExchange* dx) override {
            TestDialog::DoDataExchange(dx);
            DDX_Control(dx, IDC_LABEL, label);
        }
        CStatic label;
    } dialog(IDD_SMALL);
    dialog.Open();
    EXPECT_EQ(&dialog.label, CWnd::FromHandlePermanent(dialog.Item(IDC_LABEL)));
    EXPECT_EQ(QV_GetSysFont(QVFONT_UI, 96)->GetSafeHandle(), dialog.label.GetFont()->GetSafeHandle());
    const Picture shot = Shot(dialog.label);
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), shot.at(shot.width() - 2, 2))
        << "coloured by the dialog all the same";
    dialog.DestroyWindow();
}

TEST_F(Controls, FirstPaintIsNeverWhite) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            const LRESULT result = TestDialog::WindowProc(message, wParam, lParam);
            if (message == WM_ERASEBKGND && first == CLR_INVALID)
                first = ::GetPixel(reinterpret_cast<HDC>(wParam), 2, 2);
            return result;
        }
        COLORREF first = CLR_INVALID;
    } dialog(IDD_SMALL);
    dialog.Open();
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), dialog.first);
    dialog.DestroyWindow();
}

TEST_F(Controls, DialogObjectDestroyedWithItsWindowOpen) {
    {
        TestDialog dialog(IDD_GALLERY);
        dialog.Open();
    }
    Pump();
    EXPECT_EQ(nullptr, qvtest::findWindow({.title = L"控件一览"}));
}

TEST_F(Controls, ControlObjectsDestroyedBeforeTheirWindows) {
    TestDialog dialog(IDD_PLAIN);
    dialog.Open();
    const HWND parent = dialog;
    const HWND rawCombo = ::CreateWindowExW(0, L"ComboBox", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 0, 0,
                                            80, 90, parent, nullptr, nullptr, nullptr);
    {
        CQVComboBox combo;
        ASSERT_TRUE(combo.SubclassWindow(rawCombo));
        EXPECT_FALSE(combo.SubclassWindow(rawCombo)) << "an object has one window";
        CQVComboBox other;
        EXPECT_FALSE(other.SubclassWindow(rawCombo)) << "a window has one object";
        EXPECT_EQ(rawCombo, combo.UnsubclassWindow());
    }
    EXPECT_TRUE(::IsWindow(rawCombo));
    ::SendMessageW(rawCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"still works"));
    ::SendMessageW(rawCombo, CB_SHOWDROPDOWN, TRUE, 0);
    Pump();
    ::SendMessageW(rawCombo, CB_SHOWDROPDOWN, FALSE, 0);
    dialog.DestroyWindow();
}

TEST_F(Controls, ObjectsWithoutWindows) {
    CQVButton button;
    EXPECT_EQ(0, button.GetCheck());
    button.SetCheck(1);
    button.SetAutoSize(TRUE);
    EXPECT_FALSE(button.SetImageList(nullptr, 15));
    button.OnSkinChange(0, nullptr);
    CQVStatic text;
    text.SetBkColorIndex(18);
    text.OnSkinChange(0, nullptr);
    CQVEdit edit;
    edit.OnSkinChange(0, nullptr);
    CQVComboBox combo;
    EXPECT_FALSE(combo.SetListObject(nullptr));
    combo.OnSkinChange(0, nullptr);
    CQVComboBoxEx extended;
    extended.OnSkinChange(0, nullptr);
    CQVCheckComboBox checks;
    EXPECT_EQ(0, checks.GetCheck(0));
    EXPECT_FALSE(checks.SetCheck(0, TRUE));
    EXPECT_TRUE(checks.GetText(0).IsEmpty());
    CQVDialog dialog;
    dialog.SetAutoSize(TRUE, nullptr, 0);
    dialog.SetChildWindow(&button, QVANCHOR_FILL, 0);
    EXPECT_TRUE(dialog.GetFrameEdges() == CRect(0, 0, 0, 0));
    dialog.OnSkinChange(0, nullptr);
}

TEST_F(Controls, DialogsLeaveNothingBehind) {
    constexpr long kFontsOfStatics = 10;
    qvtest::expectNoLeak(100, [] { OpenAndClose(IDD_GALLERY); }, {.heapBlocks = kFontsOfStatics});
}

TEST_F(Controls, ThousandSmallDialogsLeaveNothingBehind) {
    constexpr long kFontsOfStatics = 2;
    const auto createAndDestroy = [] {
        TestDialog dialog(IDD_SMALL);
        ASSERT_TRUE(dialog.Create(IDD_SMALL));
        dialog.DestroyWindow();
    };
    qvtest::expectNoLeak(1000, createAndDestroy, {.heapBlocks = kFontsOfStatics});
}

TEST_F(Controls, SkinSwitchesLeaveNothingBehind) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const CString dark = SkinFolder(L"dark"), light = SkinFolder(L"light");
    qvtest::expectNoLeak(20,
                         [&] {
                             QV_SetSkinPath(light);
                             Pump();
                             QV_SetSkinPath(dark);
                             Pump();
                         },
                         {.heapBlocks = 2}); // of the fonts of each skin
    dialog.DestroyWindow();
}

TEST_F(Controls, DroppedListsLeaveNothingBehind) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND combo = dialog.Item(IDC_LIST_COMBO);
    for (int item = 0; item < 40; ++item) // more than fit: with a scroll bar
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"entry"));
    ::SetFocus(combo);
    qvtest::expectNoLeak(50, [&] {
        ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
        Pump();
        ::SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
        Pump();
    });
    dialog.DestroyWindow();
}

} // namespace controls_test
