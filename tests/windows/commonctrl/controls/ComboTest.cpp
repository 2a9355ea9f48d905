// Combo boxes of all kinds: pixels, drop-down list, keyboard, mouse, item heights, owner drawing.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

HWND ListOf(HWND combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    return ::GetComboBoxInfo(combo, &info) ? info.hwndList : nullptr;
}

void Fill(HWND combo) {
    for (const wchar_t* name : {L"HHHH", L"Wave", L"Image", L"All"})
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
}

CRect RowOf(HWND list, int row) {
    CRect rect;
    ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

int Selected(HWND combo) {
    return static_cast<int>(::SendMessageW(combo, CB_GETCURSEL, 0, 0));
}

bool IsDropped(HWND combo) {
    return ::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

} // namespace

TEST_F(Controls, ComboAndItsPartsAreSkinned) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND combo = dialog.Item(IDC_EDIT_COMBO);
    EXPECT_NE(nullptr, dynamic_cast<CQVComboBox*>(CWnd::FromHandlePermanent(combo)));
    EXPECT_NE(nullptr, dynamic_cast<CQVComboLBox*>(CWnd::FromHandlePermanent(ListOf(combo))));
    EXPECT_NE(nullptr, dynamic_cast<CQVEdit*>(CWnd::FromHandlePermanent(::GetWindow(combo, GW_CHILD))));
    dialog.DestroyWindow();
}

TEST_F(Controls, ComboStates) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND combo = dialog.Item(IDC_LIST_COMBO);
    Fill(combo);
    ::SetFocus(dialog.Item(IDC_PUSH));
    const auto ground = [&] { return Shot(combo).at(60, 4); };
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), ground());
    EXPECT_EQ(0, Shot(combo).count(QV_GetSysColor(QVCLR_TEXT_WINDOW), {2, 2, 60, 18})) << "nothing chosen";
    ::SendMessageW(combo, CB_SETCURSEL, 0, 0);
    EXPECT_GT(Shot(combo).count(QV_GetSysColor(QVCLR_TEXT_WINDOW), {2, 2, 60, 18}), 20);
    ::SendMessageW(combo, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ::UpdateWindow(combo);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_HOT), Picture::ofClient(combo).at(60, 4));
    ::SendMessageW(combo, WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_NORMAL), ground());
    ::SetFocus(combo);
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), Shot(combo).at(60, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), Shot(combo).at(60, 1));
    ::EnableWindow(combo, FALSE);
    EXPECT_EQ(QV_GetSysColor(QVCLR_CTRL_DISABLED), ground());
    EXPECT_EQ(0, Shot(combo).count(::GetSysColor(COLOR_BTNFACE)));
    dialog.DestroyWindow();
}

TEST_F(Controls, ComboListPixels) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND combo = dialog.Item(IDC_LIST_COMBO);
    Fill(combo);
    ::SetFocus(combo);
    ::SendMessageW(combo, CB_SETCURSEL, 1, 0);
    ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    const HWND list = ListOf(combo);
    const Picture shot = Shot(list);
    const CRect plain = RowOf(list, 0), selected = RowOf(list, 1);
    EXPECT_EQ(QV_GetSysColor(QVCLR_COMBO_LIST), shot.at(plain.right - 3, plain.top + 2));
    EXPECT_EQ(QV_GetSysColor(QVCLR_SELECTION), shot.at(selected.right - 3, selected.top + 2));
    EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_TEXT_WINDOW), plain), 20);
    EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_TEXT_SELECTED), selected), 10);
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST_FRAME), Picture::ofWindow(list).at(0, 5)) << "its border";
    ::SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(8, RowOf(list, 2).CenterPoint().y));
    EXPECT_EQ(QV_GetSysColor(QVCLR_SELECTION),
              Picture::ofClient(list).at(RowOf(list, 2).right - 3, RowOf(list, 2).top + 2))
        << "the row under the mouse, at once";
    ::SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
    dialog.DestroyWindow();
}

TEST_F(Controls, ComboByKeyboardAndMouse) {
    TestDialog dialog(IDD_GALLERY);
    qvtest::ModalScript script;
    script.step("keys and clicks", [&](Driver& user) {
        user.waitWindow({.title = L"控件一览"});
        const HWND combo = dialog.Item(IDC_LIST_COMBO);
        user.onUi([&] {
            Fill(combo);
            ::SetFocus(combo);
        });
        user.press(VK_DOWN);
        EXPECT_EQ(0, Selected(combo));
        user.press(VK_DOWN);
        EXPECT_EQ(1, Selected(combo));
        user.press(VK_F4);
        EXPECT_TRUE(IsDropped(combo));
        user.press(VK_DOWN);
        user.enter();
        EXPECT_FALSE(IsDropped(combo));
        EXPECT_EQ(2, Selected(combo));
        EXPECT_EQ(0, dialog.okCount) << "Enter has closed the list, not the dialog";
        user.clickAt(combo, {10, 8});
        user.waitFor("the list", [&] { return IsDropped(combo); });
        const CRect row = RowOf(ListOf(combo), 0);
        user.clickAt(ListOf(combo), row.CenterPoint());
        user.waitFor("the choice", [&] { return !IsDropped(combo) && Selected(combo) == 0; });
        user.press(VK_F4);
        user.press(VK_DOWN);
        user.escape();
        EXPECT_FALSE(IsDropped(combo));
        EXPECT_EQ(0, dialog.cancelCount) << "Escape has closed the list, not the dialog";
        user.onUi([&] { dialog.EndDialog(IDABORT); });
    });
    EXPECT_EQ(IDABORT, script.run([&] { return dialog.DoModal(); }));
}

TEST_F(Controls, EditableComboShowsItsFocus) {
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    const HWND combo = dialog.Item(IDC_EDIT_COMBO);
    ::SetFocus(dialog.Item(IDC_PUSH));
    EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), Shot(combo).at(60, 2));
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_INNER), Shot(combo).at(60, 0));
    ::SetFocus(combo);
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), Shot(combo).at(60, 0));
    ::SetFocus(dialog.Item(IDC_PUSH));
    EXPECT_EQ(QV_GetSysColor(QVCLR_EDIT_FRAME_INNER), Shot(combo).at(60, 0));
    EXPECT_EQ(0, Shot(combo).count(::GetSysColor(COLOR_WINDOW)));
    dialog.DestroyWindow();
}

TEST_F(Controls, OwnerDrawnComboIsDrawnByItsParent) {
    struct Dialog : TestDialog {
        using TestDialog::TestDialog;
        afx_msg void OnDraw(const DRAWITEMSTRUCT& draw) {
            CDC::FromHandle(draw.hDC)->FillSolidRect(&draw.rcItem, RGB(1, 200, 3));
            lastData = draw.itemData;
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_DRAWITEM) {
                OnDraw(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
                return TRUE;
            }
            return TestDialog::WindowProc(message, wParam, lParam);
        }
        ULONG_PTR lastData = 0;
    } dialog(IDD_SMALL);
    dialog.Open();
    CQVComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED,
                             CRect(4, 60, 104, 160), &dialog, 300));
    combo.AddString(reinterpret_cast<LPCWSTR>(static_cast<INT_PTR>(4711))); // entries without strings
    combo.SetCurSel(0);
    EXPECT_EQ(RGB(1, 200, 3), Shot(combo).at(30, 8));
    EXPECT_EQ(4711u, dialog.lastData);
    dialog.DestroyWindow();
}

TEST_F(Controls, ListObjectOfADerivedClass) {
    class RedList : public CQVComboLBox {
      public:
        int drawn = 0;

      protected:
        void DrawEntry(CDC* dc, int, const CRect& rect, UINT) override {
            ++drawn;
            dc->FillSolidRect(rect, RGB(200, 1, 2));
        }
    } list;
    TestDialog dialog(IDD_GALLERY);
    dialog.Open();
    auto* combo = dynamic_cast<CQVComboBox*>(CWnd::FromHandlePermanent(dialog.Item(IDC_LIST_COMBO)));
    ASSERT_NE(nullptr, combo);
    Fill(*combo);
    EXPECT_TRUE(combo->SetListObject(&list));
    EXPECT_TRUE(combo->SetListObject(&list)) << "once more changes nothing";
    EXPECT_EQ(combo, list.GetCombo());
    combo->SetFocus();
    combo->ShowDropDown(TRUE);
    EXPECT_EQ(RGB(200, 1, 2), Shot(list).at(10, 4));
    EXPECT_GT(list.drawn, 0);
    combo->ShowDropDown(FALSE);
    EXPECT_TRUE(combo->SetListObject(nullptr));
    EXPECT_EQ(nullptr, list.m_hWnd);
    combo->ShowDropDown(TRUE);
    EXPECT_NE(RGB(200, 1, 2), Shot(ListOf(*combo)).at(10, 4));
    combo->ShowDropDown(FALSE);
    dialog.DestroyWindow();
}

TEST_F(Controls, ComboBoxExWithImages) {
    TestDialog dialog(IDD_SMALL);
    dialog.Open();
    CQVComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(4, 60, 144, 160), &dialog, 301));
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    CBitmap red;
    std::vector<DWORD> pixels(16 * 16, 0xFFFF0000);
    ASSERT_TRUE(red.CreateBitmap(16, 16, 1, 32, pixels.data()));
    images.Add(&red, static_cast<CBitmap*>(nullptr));
    combo.SendMessage(CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.GetSafeHandle()));
    for (int item = 0; item < 3; ++item) {
        COMBOBOXEXITEMW entry = {};
        entry.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_INDENT;
        entry.iItem = item;
        entry.pszText = const_cast<wchar_t*>(L"HHHH");
        entry.iIndent = item;
        EXPECT_EQ(item, combo.SendMessage(CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&entry)));
    }
    const auto inner = reinterpret_cast<HWND>(combo.SendMessage(CBEM_GETCOMBOCONTROL));
    EXPECT_NE(nullptr, dynamic_cast<CQVComboBox*>(CWnd::FromHandlePermanent(inner)));
    ::SetFocus(inner);
    ::SendMessageW(inner, CB_SHOWDROPDOWN, TRUE, 0);
    const HWND list = ListOf(inner);
    const Picture shot = Shot(list);
    EXPECT_GT(shot.count(RGB(255, 0, 0), RowOf(list, 0)), 100);
    EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_TEXT_WINDOW), RowOf(list, 1)), 20);
    const auto firstRed = [&](int row) {
        const CRect rect = RowOf(list, row);
        for (int x = 0; x < rect.right; ++x) {
            if (shot.at(x, rect.CenterPoint().y) == RGB(255, 0, 0))
                return x;
        }
        return -1;
    };
    EXPECT_EQ(10, firstRed(1) - firstRed(0)) << "one step of indentation";
    ::SendMessageW(inner, CB_SHOWDROPDOWN, FALSE, 0);
    dialog.DestroyWindow();
}

} // namespace controls_test
