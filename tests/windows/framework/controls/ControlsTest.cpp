// The classes of the system's controls: what is more than one message.
#include "TestWnd.h"

#include "afxext.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

class Controls : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(m_parent.CreateTop()); }
    const CRect m_place{0, 0, 150, 90};
    TestWnd m_parent;
};

TEST_F(Controls, ListView) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(LVS_REPORT, m_place, &m_parent, 1));
    EXPECT_EQ(0, list.InsertColumn(0, L"Name", LVCFMT_LEFT, 70));
    EXPECT_EQ(1, list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 40, 1));
    EXPECT_EQ(70, list.GetColumnWidth(0));
    const CString longText(L'x', 700);
    EXPECT_EQ(0, list.InsertItem(0, longText));
    EXPECT_EQ(1, list.InsertItem(1, L"second", 3));
    EXPECT_TRUE(list.SetItemText(1, 1, L"12"));
    EXPECT_STREQ(longText, list.GetItemText(0, 0));
    EXPECT_STREQ(L"12", list.GetItemText(1, 1));
    EXPECT_STREQ(L"", list.GetItemText(9, 0));
    EXPECT_TRUE(list.SetItemData(1, 0x1234567890));
    EXPECT_EQ(0x1234567890u, list.GetItemData(1));
    EXPECT_EQ(0u, list.GetItemData(9));
    EXPECT_EQ(nullptr, list.GetFirstSelectedItemPosition());
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    POSITION pos = list.GetFirstSelectedItemPosition();
    ASSERT_NE(nullptr, pos);
    EXPECT_EQ(1, list.GetNextSelectedItem(pos));
    EXPECT_EQ(nullptr, pos);
    CHeaderCtrl header;
    ASSERT_TRUE(header.SubclassWindow(list.GetHeaderCtrl()->m_hWnd));
    EXPECT_EQ(&header, list.GetHeaderCtrl());
    EXPECT_EQ(2, header.GetItemCount());
    int order[2] = {};
    EXPECT_TRUE(header.GetOrderArray(order));
    EXPECT_EQ(1, order[1]);
    CRect bounds;
    EXPECT_TRUE(list.GetItemRect(1, &bounds, LVIR_LABEL));
    EXPECT_EQ(1, list.HitTest(bounds.CenterPoint()));
}

TEST_F(Controls, TreeView) {
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(TVS_HASBUTTONS | WS_VISIBLE, m_place, &m_parent, 1));
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM child = tree.InsertItem(L"child", root);
    ASSERT_NE(nullptr, child);
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_FALSE(tree.ItemHasChildren(child));
    EXPECT_EQ(root, tree.GetRootItem());
    EXPECT_EQ(child, tree.GetChildItem(root));
    EXPECT_EQ(root, tree.GetParentItem(child));
    EXPECT_STREQ(L"child", tree.GetItemText(child));
    EXPECT_STREQ(L"", tree.GetItemText(nullptr));
    EXPECT_TRUE(tree.SetItemText(child, L"renamed"));
    EXPECT_STREQ(L"renamed", tree.GetItemText(child));
    EXPECT_TRUE(tree.SetItemData(child, 77));
    EXPECT_EQ(77u, tree.GetItemData(child));
    EXPECT_TRUE(tree.Expand(root, TVE_EXPAND));
    EXPECT_NE(0u, tree.GetItemState(root, TVIS_EXPANDED));
    EXPECT_TRUE(tree.SelectItem(child));
    EXPECT_EQ(child, tree.GetSelectedItem());
    CRect place;
    EXPECT_TRUE(tree.GetItemRect(child, &place, TRUE));
    EXPECT_EQ(child, tree.HitTest(place.CenterPoint()));
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(0u, tree.GetCount());
}

TEST_F(Controls, ExtendedComboBox) {
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(CBS_DROPDOWN, m_place, &m_parent, 1));
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT;
    wchar_t text[] = L"entry";
    item.pszText = text;
    EXPECT_EQ(0, combo.InsertItem(&item));
    EXPECT_EQ(1, combo.GetCount());
    ASSERT_NE(nullptr, combo.GetComboBoxCtrl());
    EXPECT_EQ(1, combo.GetComboBoxCtrl()->GetCount());
    ASSERT_NE(nullptr, combo.GetEditCtrl());
    combo.SetCurSel(0);
    CString shown;
    combo.GetEditCtrl()->GetWindowText(shown);
    EXPECT_STREQ(L"entry", shown);
}

TEST_F(Controls, ToolBarOfTheSystemCanBeTakenOver) {
    const HWND bar = ::CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", WS_CHILD | CCS_NORESIZE, 0, 0, 90, 30,
                                       m_parent.m_hWnd, nullptr, nullptr, nullptr);
    ::SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    CToolBar tools;
    ASSERT_TRUE(tools.SubclassWindow(bar));
    TBBUTTON button = {};
    button.idCommand = 33;
    button.fsState = TBSTATE_ENABLED;
    button.iString = reinterpret_cast<INT_PTR>(L"Press");
    static_assert(!std::is_base_of_v<CToolBarCtrl, CToolBar>, "the control's functions are not the bar's");
    CToolBarCtrl& control = tools.GetToolBarCtrl();
    EXPECT_EQ(bar, control.m_hWnd);
    EXPECT_EQ(&tools, CWnd::FromHandlePermanent(bar));
    EXPECT_TRUE(control.AddButtons(1, &button));
    EXPECT_EQ(1, control.GetButtonCount());
    EXPECT_EQ(33u, tools.GetItemID(0));
    EXPECT_EQ(0u, tools.GetItemID(5));
    EXPECT_STREQ(L"Press", tools.GetButtonText(0));
    tools.UnsubclassWindow();
    EXPECT_TRUE(::IsWindow(bar));
    EXPECT_EQ(nullptr, tools.GetToolBarCtrl().m_hWnd);
}

TEST_F(Controls, ProgressBarAndSlider) {
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(0, m_place, &m_parent, 1));
    progress.SetRange32(-5, 100000);
    int low = 0;
    int high = 0;
    progress.GetRange(low, high);
    EXPECT_EQ(-5, low);
    EXPECT_EQ(100000, high);
    progress.SetPos(70000);
    EXPECT_EQ(70000, progress.GetPos());
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(0, m_place, &m_parent, 2));
    slider.SetRange(10, 20);
    slider.SetPos(15);
    EXPECT_EQ(15, slider.GetPos());
}

TEST_F(Controls, ToolTipTools) {
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    TestWnd child;
    ASSERT_TRUE(child.CreateChild(m_parent, 4));
    EXPECT_TRUE(tips.AddTool(&child, L"a child"));
    EXPECT_TRUE(tips.AddTool(&m_parent, L"a place", m_place, 5));
    EXPECT_FALSE(tips.AddTool(&m_parent, L"a place without id", m_place, 0));
    EXPECT_FALSE(tips.AddTool(nullptr, L"nothing"));
    EXPECT_EQ(2, tips.GetToolCount());
    tips.DelTool(&child);
    tips.DelTool(&m_parent, 5);
    EXPECT_EQ(0, tips.GetToolCount());
}

TEST_F(Controls, WindowState) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, m_place, &m_parent, 6));
    EXPECT_TRUE(edit.ModifyStyle(0, ES_READONLY));
    EXPECT_FALSE(edit.ModifyStyle(0, ES_READONLY)) << "nothing changed";
    const CString longText(L'y', 20000);
    edit.SetLimitText(30000);
    edit.SetWindowText(longText);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(longText, text);
    EXPECT_EQ(20000, m_parent.GetDlgItemText(6, text));
    CRect rect(1, 2, 3, 4);
    edit.MoveWindow(CRect(10, 20, 60, 50));
    edit.GetWindowRect(&rect);
    m_parent.ScreenToClient(&rect);
    EXPECT_EQ(CRect(10, 20, 60, 50), rect);
    EXPECT_EQ(&m_parent, edit.GetOwner());
    TestWnd other;
    edit.SetOwner(&other);
    EXPECT_EQ(&m_parent, edit.GetParent());
    EXPECT_EQ(&m_parent, edit.GetTopLevelParent());
    edit.CenterWindow();
    CRect client;
    m_parent.GetClientRect(&client);
    edit.GetWindowRect(&rect);
    m_parent.ScreenToClient(&rect);
    EXPECT_EQ(client.CenterPoint(), rect.CenterPoint());
}

TEST(NoWindow, AsksAndDoesNothing) {
    CWnd none;
    CString text = L"old";
    none.GetWindowText(text);
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(0, none.SendMessage(WM_APP));
    EXPECT_FALSE(none.PostMessage(WM_APP));
    EXPECT_EQ(0u, none.SetTimer(1, 10, nullptr));
    EXPECT_FALSE(none.ModifyStyle(0, WS_VISIBLE));
    EXPECT_FALSE(none.RedrawWindow());
    EXPECT_EQ(nullptr, none.GetParent());
    EXPECT_EQ(nullptr, none.GetDlgItem(1));
    EXPECT_FALSE(none.ContinueModal());
    none.CenterWindow();
    none.EndModalLoop(3);
    EXPECT_EQ(-1, none.RunModalLoop());
}

} // namespace
