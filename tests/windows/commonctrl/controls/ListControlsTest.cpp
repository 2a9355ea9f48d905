// Skinned header, list, tree and progress bar in a real window: pixels, states, keyboard, switching, leaks.
#include "SkinFixture.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "Picture.h"

#include <set>

using namespace _qv_commonctrl;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::Picture;

namespace {

class ListControls : public SkinFixture {
  protected:
    static void fill(CQVListCtrl& list, int count) {
        list.InsertColumn(0, L"\u540D\u79F0", LVCFMT_LEFT, 160);
        list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 80);
        for (int i = 0; i < count; ++i) {
            list.InsertItem(i, (L"clip " + std::to_wstring(i) + L" \u7247\u6BB5").c_str());
            list.SetItemText(i, 1, (std::to_wstring(i * 37) + L" kB").c_str());
        }
    }

    // Colours that no skinned control shows: the system's window, face and selection. (Text on the selection is
    // white, too: pictures to count in have none.)
    static int systemPixels(const Picture& picture) {
        return picture.count(GetSysColor(COLOR_WINDOW)) + picture.count(GetSysColor(COLOR_BTNFACE)) +
               picture.count(GetSysColor(COLOR_HIGHLIGHT));
    }

    static Picture look(CWnd& wnd, const wchar_t* name) {
        TestHost::Settle();
        wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        const Picture picture = Picture::ofWindow(wnd.m_hWnd);
        if (name)
            picture.save(qvtest::picturePath(name));
        return picture;
    }
};

TEST_F(ListControls, ReportList) {
    TestHost host;
    CQVListCtrl list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(20, 20, 300, 220),
                            &host, 7));
    list.SetFont(QV_GetSysFont(QVFONT_UI));
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    fill(list, 40);
    EXPECT_EQ(0, systemPixels(look(list, nullptr)));
    list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetFocus();
    Picture picture = look(list, L"list-report");
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_LIST)), 10000);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_SELECTION)), 1000);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TEXT_LIST)), 200);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_HEADER)), 2000);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_ACCENT)), 100); // focus line
    host.SetFocus();
    picture = look(list, nullptr);
    EXPECT_EQ(0, picture.count(QV_GetSysColor(QVCLR_SELECTION)));
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_CTRL_HOT)), 1000);
    EXPECT_EQ(0, picture.count(QV_GetSysColor(QVCLR_ACCENT)));
    list.EnableWindow(FALSE);
    picture = look(list, L"list-disabled");
    EXPECT_EQ(0, systemPixels(picture));
    EXPECT_EQ(0, picture.count(QV_GetSysColor(QVCLR_TEXT_LIST)));
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TEXT_DISABLED)), 200);
    list.DestroyWindow();
}

TEST_F(ListControls, ListInLightSkin) {
    QV_SetSkinPath(skinFolder(L"light").c_str());
    TestHost host;
    CQVListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(20, 20, 300, 220), &host, 7);
    list.SetFont(QV_GetSysFont(QVFONT_UI));
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES);
    fill(list, 40);
    list.SetCheck(1);
    list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetFocus();
    const Picture picture = look(list, L"list-light");
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_SELECTION)), 1000);
    EXPECT_EQ(0, picture.count(GetSysColor(COLOR_BTNFACE)));
    list.DestroyWindow();
}

TEST_F(ListControls, EveryView) {
    for (const DWORD view : {LVS_ICON, LVS_SMALLICON, LVS_LIST}) {
        TestHost host;
        CQVListCtrl list;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_SHOWSELALWAYS | view, CRect(20, 20, 380, 220), &host, 7);
        list.SetFont(QV_GetSysFont(QVFONT_UI));
        for (int i = 0; i < 30; ++i)
            list.InsertItem(i, (L"clip " + std::to_wstring(i)).c_str());
        EXPECT_EQ(0, systemPixels(look(list, nullptr))) << view;
        list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        list.SetFocus();
        const Picture picture = look(list, (L"list-view-" + std::to_wstring(view)).c_str());
        EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_SELECTION)), 100) << view;
        EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TEXT_LIST)), 200) << view;
        list.DestroyWindow();
    }
}

TEST_F(ListControls, SubclassedListIsSkinned) {
    TestHost host;
    const HWND native = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 20, 20, 300,
                                        200, host, reinterpret_cast<HMENU>(7), nullptr, nullptr);
    CQVListCtrl list;
    ASSERT_TRUE(list.SubclassWindow(native));
    fill(list, 40);
    EXPECT_EQ(0, systemPixels(look(list, nullptr)));
    QVReplaceData data;
    EXPECT_TRUE(QV_GetReplaceData(native, data));
    list.DestroyWindow();
}

TEST_F(ListControls, LiveSwitch) {
    TestHost host;
    CQVListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 300, 220), &host, 7);
    fill(list, 40);
    CQVTreeCtrl tree;
    tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS, CRect(310, 20, 390, 220), &host, 8);
    tree.InsertItem(L"root");
    look(list, nullptr);
    const COLORREF dark = QV_GetSysColor(QVCLR_LIST);
    ASSERT_TRUE(QV_SetSkinPath(skinFolder(L"light").c_str()));
    const Picture picture = Picture::ofWindow(list.m_hWnd);
    EXPECT_EQ(0, picture.count(dark));
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_LIST)), 10000);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_HEADER)), 2000);
    EXPECT_GT(Picture::ofWindow(tree.m_hWnd).count(QV_GetSysColor(QVCLR_TREE)), 10000);
    list.DestroyWindow();
    tree.DestroyWindow();
}

TEST_F(ListControls, HeaderIsHotPressedAndSorted) {
    TestHost host;
    CQVListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 300, 220), &host, 7);
    list.SetFont(QV_GetSysFont(QVFONT_UI));
    fill(list, 4);
    CHeaderCtrl& header = *list.GetHeaderCtrl();
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    header.GetItem(0, &item);
    item.fmt |= HDF_SORTUP;
    header.SetItem(0, &item);
    const HWND wnd = header.m_hWnd;
    const COLORREF hot = QV_GetSysColor(QVCLR_CTRL_HOT);
    const COLORREF pressed = QV_GetSysColor(QVCLR_CTRL_PRESSED);
    ModalScript script;
    script.step("hover and press", [&](Driver& user) {
        user.hover(wnd, {40, 8});
        user.waitFor("hot", [&] { return Picture::ofClient(wnd).count(hot) > 500; });
        Picture::ofClient(wnd).save(qvtest::picturePath(L"header-hot"));
        qvtest::mouseDown();
        user.waitFor("pressed", [&] { return Picture::ofClient(wnd).count(pressed) > 500; });
        qvtest::mouseUp();
        user.hover(host.m_hWnd, {5, 5});
        user.waitFor("normal", [&] { return Picture::ofClient(wnd).count(hot) == 0; });
        user.onUi([&] { host.End(); });
    });
    script.run([&] { host.Loop(); });
    list.DestroyWindow();
}

TEST_F(ListControls, Tree) {
    TestHost host;
    CQVTreeCtrl tree;
    tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                CRect(20, 20, 250, 240), &host, 7);
    tree.SetFont(QV_GetSysFont(QVFONT_UI));
    const HTREEITEM root = tree.InsertItem(L"\u684C\u9762");
    for (int i = 0; i < 30; ++i) {
        const HTREEITEM child = tree.InsertItem((L"folder " + std::to_wstring(i)).c_str(), root);
        tree.InsertItem(L"inner", child);
    }
    tree.Expand(root, TVE_EXPAND);
    EXPECT_EQ(0, systemPixels(look(tree, nullptr)));
    tree.SelectItem(tree.GetChildItem(root));
    tree.SetFocus();
    const Picture picture = look(tree, L"tree");
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_SELECTION)), 300);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TEXT_TREE)), 500);
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TREE)), 20000);
    tree.DestroyWindow();
}

TEST_F(ListControls, TreeIsUsedByMouseAndKeyboard) {
    TestHost host;
    CQVTreeCtrl tree;
    tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT, CRect(20, 20, 250, 240), &host, 7);
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM child = tree.InsertItem(L"child", root);
    TestHost::Settle();
    CRect text;
    tree.GetItemRect(root, text, TRUE);
    // The drawn expander must be where the control takes clicks for it.
    const int indent = static_cast<int>(tree.GetIndent());
    const CRect cell(text.left - indent, text.top, text.left, text.bottom);
    const POINT expander = cell.CenterPoint();
    const Picture drawn = Picture::ofClient(tree).part(cell);
    EXPECT_GT(drawn.width() * drawn.height() - drawn.count(QV_GetSysColor(QVCLR_TREE)), 6);
    const auto expanded = [&] { return (tree.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED) != 0; };
    const HWND wnd = tree.m_hWnd;
    ModalScript script;
    script.step("expand", [&](Driver& user) {
        user.clickAt(wnd, expander);
        user.waitFor("expanded by mouse", expanded);
        user.clickAt(wnd, {text.left + 5, expander.y});
        user.press(VK_LEFT);
        user.waitFor("collapsed", [&] { return !expanded(); });
        user.press(VK_RIGHT);
        user.press(VK_RIGHT);
        user.waitFor("child selected", [&] { return tree.GetSelectedItem() == child; });
        user.onUi([&] { host.End(); });
    });
    script.run([&] { host.Loop(); });
    tree.DestroyWindow();
}

TEST_F(ListControls, Progress) {
    TestHost host;
    CQVProgressCtrl progress;
    ASSERT_TRUE(progress.Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 222, 40), &host, 7));
    progress.SetRange(0, 200);
    const COLORREF accent = QV_GetSysColor(QVCLR_ACCENT);
    for (const int position : {0, 1, 100, 200, 500, -5}) {
        progress.SetPos(position);
        TestHost::Settle();
        EXPECT_EQ(std::clamp(position, 0, 200) * 18, Picture::ofClient(progress).count(accent)) << position;
    }
    progress.SetPos(60);
    look(progress, L"progress");
    progress.SetRange32(INT_MIN, INT_MAX);
    progress.SetPos(0);
    TestHost::Settle();
    EXPECT_NEAR(100 * 18, Picture::ofClient(progress).count(accent), 18);
    progress.DestroyWindow();
    CQVProgressCtrl tall;
    tall.Create(WS_CHILD | WS_VISIBLE | PBS_VERTICAL, CRect(20, 20, 40, 122), &host, 8);
    tall.SetPos(25);
    TestHost::Settle();
    const Picture picture = Picture::ofClient(tall);
    EXPECT_EQ(25 * 18, picture.count(accent));
    EXPECT_EQ(accent, picture.at(10, 100));
    tall.DestroyWindow();
}

TEST_F(ListControls, MarqueeMoves) {
    TestHost host;
    CQVProgressCtrl progress;
    progress.Create(WS_CHILD | WS_VISIBLE | PBS_MARQUEE, CRect(20, 20, 222, 40), &host, 7);
    progress.SendMessage(PBM_SETMARQUEE, TRUE, 10);
    std::set<std::uint64_t> pictures;
    EXPECT_TRUE(TestHost::PumpUntil([&] {
        pictures.insert(Picture::ofClient(progress).hash());
        return pictures.size() > 5;
    }));
    progress.SendMessage(PBM_SETMARQUEE, FALSE, 0);
    progress.DestroyWindow();
}

TEST_F(ListControls, RowsAreAppendedAtOnce) {
    TestHost host;
    CQVListCtrl list;
    CStringArray texts;
    EXPECT_FALSE(list.AppendRows(texts)) << "no window";
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 300, 220), &host, 7));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 160);
    list.InsertItem(0, L"before");
    EXPECT_TRUE(list.AppendRows(texts)) << "no rows";
    EXPECT_EQ(1, list.GetItemCount());
    for (int i = 0; i < 500; ++i)
        texts.Add((L"\u7247\u6BB5 " + std::to_wstring(i)).c_str());
    texts.Add(L"");
    EXPECT_TRUE(list.AppendRows(texts));
    ASSERT_EQ(502, list.GetItemCount());
    EXPECT_STREQ(L"before", list.GetItemText(0, 0));
    EXPECT_STREQ(L"\u7247\u6BB5 0", list.GetItemText(1, 0));
    EXPECT_STREQ(L"\u7247\u6BB5 499", list.GetItemText(500, 0));
    EXPECT_STREQ(L"", list.GetItemText(501, 0));
    const Picture picture = look(list, L"list-appended"); // with its scroll bar
    EXPECT_EQ(0, systemPixels(picture));
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_TEXT_LIST)), 200);
    list.DestroyWindow();
}

TEST_F(ListControls, LeaveNothingBehind) {
    TestHost host;
    qvtest::expectNoLeak(30, [&] {
        CQVListCtrl list;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(20, 20, 300, 220), &host, 7);
        fill(list, 30);
        CQVTreeCtrl tree;
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS, CRect(310, 20, 390, 220), &host, 8);
        tree.InsertItem(L"root");
        CQVProgressCtrl progress;
        progress.Create(WS_CHILD | WS_VISIBLE, CRect(20, 230, 222, 250), &host, 9);
        progress.SetPos(50);
        TestHost::Settle();
        progress.DestroyWindow();
        tree.DestroyWindow();
        list.DestroyWindow();
    });
}

} // namespace
