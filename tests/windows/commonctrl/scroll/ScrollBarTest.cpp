// Skinned scroll bars by real mouse and keyboard, over every kind of window that they are made for.
#include "SkinFixture.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "Picture.h"

using namespace _qv_commonctrl;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::Picture;

namespace {

constexpr int kItems = 1000;
constexpr int kBarPx = 17; // SM_CXVSCROLL of the test machine is checked below

// A native control with many lines in a host window, its bars replaced.
class Scrolled {
  public:
    enum Kind { ListView, TreeView, ListBox, Edit };

    explicit Scrolled(Kind kind, DWORD style = 0) {
        static constexpr struct {
            const wchar_t* name;
            DWORD style;
        } kClasses[] = {{WC_LISTVIEWW, LVS_REPORT | LVS_SHOWSELALWAYS},
                        {WC_TREEVIEWW, TVS_HASBUTTONS},
                        {L"LISTBOX", WS_VSCROLL | LBS_NOINTEGRALHEIGHT},
                        {L"EDIT", WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL}};
        wnd =
            CreateWindowExW(0, kClasses[kind].name, L"", WS_CHILD | WS_VISIBLE | kClasses[kind].style | style,
                            20, 20, 200, 220, host, reinterpret_cast<HMENU>(5), nullptr, nullptr);
        SendMessageW(wnd, WM_SETREDRAW, FALSE, 0);
        Fill(kind);
        SendMessageW(wnd, WM_SETREDRAW, TRUE, 0);
        replaced = QV_ReplaceWnd(wnd);
        TestHost::Settle();
    }

    QVReplaceData Data() const {
        QVReplaceData data;
        EXPECT_TRUE(QV_GetReplaceData(wnd, data));
        return data;
    }

    int Position() const { return GetScrollPos(wnd, SB_VERT); }

    // While its thumb is held, an edit control scrolls its lines and leaves the position for the end.
    int FirstShown() const {
        CString name;
        GetClassNameW(wnd, name.GetBuffer(MAX_PATH), MAX_PATH);
        name.ReleaseBuffer();
        return name.CompareNoCase(WC_EDITW) == 0
                   ? static_cast<int>(SendMessageW(wnd, EM_GETFIRSTVISIBLELINE, 0, 0))
                   : Position();
    }

    // The vertical bar on the screen.
    CRect Bar() const {
        CRect bar = Data().rcVert;
        CRect window;
        GetWindowRect(wnd, window);
        bar.OffsetRect(window.TopLeft());
        return bar;
    }

    CRect Thumb() const {
        SCROLLBARINFO info = {};
        info.cbSize = sizeof(info);
        GetScrollBarInfo(wnd, OBJID_VSCROLL, &info);
        const CRect bar = info.rcScrollBar;
        return CRect(bar.left, bar.top + info.xyThumbTop, bar.right, bar.top + info.xyThumbBottom);
    }

    // Client co-ordinates of the host, as the driver wants them.
    static POINT InHost(CPoint screen) { return {screen.x - TestHost::kLeft, screen.y - TestHost::kTop}; }

    TestHost host;
    HWND wnd = nullptr;
    BOOL replaced = FALSE;

  private:
    void Fill(Kind kind) {
        if (kind == ListView) {
            LVCOLUMNW column = {};
            column.mask = LVCF_WIDTH;
            column.cx = 100;
            SendMessageW(wnd, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
        }
        std::wstring lines;
        for (int i = 0; i < kItems; ++i) {
            std::wstring text = L"line " + std::to_wstring(i);
            LVITEMW row = {};
            row.mask = LVIF_TEXT;
            row.iItem = i;
            row.pszText = text.data();
            TVINSERTSTRUCTW node = {};
            node.hInsertAfter = TVI_LAST;
            node.item.mask = TVIF_TEXT;
            node.item.pszText = text.data();
            if (kind == ListView)
                SendMessageW(wnd, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
            else if (kind == TreeView)
                SendMessageW(wnd, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&node));
            else if (kind == ListBox)
                SendMessageW(wnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
            lines += text + L"\r\n";
        }
        if (kind == Edit)
            SetWindowTextW(wnd, lines.c_str());
    }
};

// A step that fails must not leave the button down: the native bar's own loop would never end.
class HeldButton {
  public:
    HeldButton() { qvtest::mouseDown(); }
    ~HeldButton() { release(); }
    void release() {
        if (m_held)
            qvtest::mouseUp();
        m_held = false;
    }

  private:
    bool m_held = true;
};

COLORREF pixelAt(CPoint screen) {
    return Picture::ofScreen(CRect(screen, CSize(1, 1))).at(0, 0);
}

class ScrollBars : public SkinFixture, public testing::WithParamInterface<Scrolled::Kind> {
  public:
    static void SetUpTestSuite() { ASSERT_GE(GetSystemMetrics(SM_CXVSCROLL), 12) << kBarPx; }
};

TEST_P(ScrollBars, ShowTheSkin) {
    Scrolled scrolled(GetParam());
    ASSERT_TRUE(scrolled.replaced);
    EXPECT_TRUE(QV_ReplaceWnd(scrolled.wnd)); // already
    const QVReplaceData data = scrolled.Data();
    EXPECT_EQ(scrolled.wnd, data.hWnd);
    EXPECT_TRUE(data.bVert);
    EXPECT_EQ(GetSystemMetrics(SM_CXVSCROLL), data.rcVert.Width());
    EXPECT_TRUE(TestHost::PumpUntil([&] {
        const Picture bar = Picture::ofScreen(scrolled.Bar());
        return bar.count(QV_GetSysColor(QVCLR_SCROLL_TRACK)) > bar.width() * bar.height() / 2 &&
               bar.count(QV_GetSysColor(QVCLR_SCROLL_THUMB)) > 20 &&
               bar.count(GetSysColor(COLOR_BTNFACE)) == 0;
    }));
    Picture::ofWindow(scrolled.host).save(qvtest::picturePath(L"scroll-" + std::to_wstring(GetParam())));
}

TEST_P(ScrollBars, ArrowsScrollALineAndRepeat) {
    Scrolled scrolled(GetParam());
    const CRect bar = scrolled.Bar();
    const POINT down = Scrolled::InHost({bar.CenterPoint().x, bar.bottom - 5});
    const POINT up = Scrolled::InHost({bar.CenterPoint().x, bar.top + 5});
    int afterOne = 0;
    int afterHold = 0;
    ModalScript script;
    script.step("click the arrows", [&](Driver& user) {
        user.clickAt(scrolled.host, down);
        user.waitFor("a line", [&] { return scrolled.Position() > 0; });
        afterOne = scrolled.Position();
        qvtest::moveMouse({down.x + TestHost::kLeft, down.y + TestHost::kTop});
        HeldButton button;
        user.waitFor("repeats", [&] { return scrolled.Position() >= 5 * afterOne; });
        button.release();
        user.settle();
        afterHold = scrolled.Position();
        user.clickAt(scrolled.host, up);
        user.waitFor("back a line", [&] { return scrolled.Position() < afterHold; });
    });
    script.step("end", [&](Driver& user) { user.onUi([&] { scrolled.host.End(); }); });
    script.run([&] { scrolled.host.Loop(); });
    EXPECT_GT(afterHold, afterOne);
}

TEST_P(ScrollBars, TroughScrollsAPage) {
    Scrolled scrolled(GetParam());
    const CRect bar = scrolled.Bar();
    const POINT below = Scrolled::InHost({bar.CenterPoint().x, bar.bottom - 30});
    ModalScript script;
    script.step("click below the thumb", [&](Driver& user) {
        user.clickAt(scrolled.host, below);
        user.waitFor("a page", [&] { return scrolled.Position() > 3; });
        user.onUi([&] { scrolled.host.End(); });
    });
    script.run([&] { scrolled.host.Loop(); });
    EXPECT_LT(scrolled.Position(), kItems / 2);
}

TEST_P(ScrollBars, ThumbIsDraggedAndShownUnderTheMouse) {
    constexpr int kNearPlaces = kItems / 6;
    Scrolled scrolled(GetParam());
    const CPoint start = scrolled.Thumb().CenterPoint();
    const CPoint goal(start.x, scrolled.Bar().CenterPoint().y);
    ModalScript script;
    script.step("drag", [&](Driver& user) {
        qvtest::moveMouse(start);
        user.settle();
        HeldButton button;
        for (int y = start.y; y < goal.y; y += 5)
            qvtest::moveMouse({goal.x, y});
        // The display's own reports of earlier places may come late and move the thumb back once more.
        constexpr int kQuietLooks = 10;
        int quietLooks = 0;
        user.waitFor("the thumb at rest under the mouse", [&] {
            qvtest::moveMouse(goal);
            const bool there = pixelAt(goal) == QV_GetSysColor(QVCLR_SCROLL_THUMB_PRESSED) &&
                               std::abs(scrolled.FirstShown() - kItems / 2) <= kNearPlaces;
            quietLooks = there ? quietLooks + 1 : 0;
            return quietLooks == kQuietLooks;
        });
        button.release();
        user.settle();
        qvtest::moveMouse({TestHost::kLeft + 2, TestHost::kTop + 2});
        user.waitFor("the normal thumb", [&] {
            return pixelAt(scrolled.Thumb().CenterPoint()) == QV_GetSysColor(QVCLR_SCROLL_THUMB);
        });
        user.onUi([&] { scrolled.host.End(); });
    });
    script.run([&] { scrolled.host.Loop(); });
    EXPECT_NEAR(kItems / 2, scrolled.Position(), kNearPlaces);
}

TEST_P(ScrollBars, HoverLightsThePart) {
    Scrolled scrolled(GetParam());
    const CPoint thumb = scrolled.Thumb().CenterPoint();
    ModalScript script;
    script.step("hover", [&](Driver& user) {
        qvtest::moveMouse(thumb);
        user.waitFor("the hot thumb",
                     [&] { return pixelAt(thumb) == QV_GetSysColor(QVCLR_SCROLL_THUMB_HOT); });
        qvtest::moveMouse({TestHost::kLeft + 2, TestHost::kTop + 2});
        user.waitFor("the normal thumb",
                     [&] { return pixelAt(thumb) == QV_GetSysColor(QVCLR_SCROLL_THUMB); });
        user.onUi([&] { scrolled.host.End(); });
    });
    script.run([&] { scrolled.host.Loop(); });
}

TEST_P(ScrollBars, KeyboardAndWheelMoveTheThumb) {
    Scrolled scrolled(GetParam());
    const CPoint top = scrolled.Thumb().CenterPoint();
    ModalScript script;
    script.step("keys", [&](Driver& user) {
        user.onUi([&] { SetFocus(scrolled.wnd); });
        user.clickAt(scrolled.wnd, {20, 30});
        user.press(VK_END, GetParam() == Scrolled::Edit ? qvtest::Control : qvtest::NoModifier);
        user.waitFor("the end", [&] { return scrolled.Position() > kItems * 3 / 4; });
        user.waitFor("the thumb gone from the top",
                     [&] { return pixelAt(top) == QV_GetSysColor(QVCLR_SCROLL_TRACK); });
        const int end = scrolled.Position();
        CRect client;
        GetClientRect(scrolled.wnd, client);
        user.wheel(scrolled.wnd, client.CenterPoint(), 3);
        user.waitFor("the wheel", [&] { return scrolled.Position() < end; });
        user.onUi([&] { scrolled.host.End(); });
    });
    script.run([&] { scrolled.host.Loop(); });
}

TEST_P(ScrollBars, FollowTheWindow) {
    Scrolled scrolled(GetParam());
    const CRect before = scrolled.Bar();
    SetWindowPos(scrolled.wnd, nullptr, 50, 40, 150, 160, SWP_NOZORDER | SWP_NOACTIVATE);
    TestHost::Settle();
    const CRect after = scrolled.Bar();
    EXPECT_NE(before, after);
    EXPECT_EQ(TestHost::kLeft + 200, after.right);
    EXPECT_EQ(QV_GetSysColor(QVCLR_SCROLL_TRACK), pixelAt({after.CenterPoint().x, after.bottom - 25}));
    EXPECT_EQ(scrolled.host.ground, pixelAt({before.CenterPoint().x, before.bottom - 2}));
    ShowWindow(scrolled.wnd, SW_HIDE);
    TestHost::Settle();
    EXPECT_TRUE(TestHost::PumpUntil([&] {
        return pixelAt({after.CenterPoint().x, after.bottom - 25}) == scrolled.host.ground;
    }));
    EXPECT_FALSE(scrolled.Data().bVert);
}

TEST_P(ScrollBars, DisabledWindowHasDisabledBars) {
    Scrolled scrolled(GetParam());
    const CPoint thumb = scrolled.Thumb().CenterPoint();
    EXPECT_EQ(QV_GetSysColor(QVCLR_SCROLL_THUMB), pixelAt(thumb));
    EnableWindow(scrolled.wnd, FALSE);
    EXPECT_TRUE(TestHost::PumpUntil([&] { return pixelAt(thumb) == QV_GetSysColor(QVCLR_SCROLL_TRACK); }));
}

TEST_P(ScrollBars, AreGivenBack) {
    Scrolled scrolled(GetParam());
    const CPoint place = scrolled.Bar().CenterPoint();
    EXPECT_TRUE(QV_UnReplaceWnd(scrolled.wnd));
    EXPECT_FALSE(QV_UnReplaceWnd(scrolled.wnd));
    QVReplaceData data;
    data.bVert = 42;
    EXPECT_FALSE(QV_GetReplaceData(scrolled.wnd, data));
    EXPECT_EQ(42, data.bVert);
    EXPECT_TRUE(TestHost::PumpUntil([&] { return pixelAt(place) != QV_GetSysColor(QVCLR_SCROLL_TRACK); }));
}

TEST_P(ScrollBars, SkinChangeRepaintsThem) {
    Scrolled scrolled(GetParam());
    const CPoint place = scrolled.Bar().CenterPoint();
    const COLORREF dark = pixelAt(place);
    QV_SetSkinPath(skinFolder(L"light").c_str());
    EXPECT_TRUE(TestHost::PumpUntil([&] { return pixelAt(place) == QV_GetSysColor(QVCLR_SCROLL_TRACK); }));
    EXPECT_NE(dark, pixelAt(place));
}

TEST_P(ScrollBars, LeaveNothingBehind) {
    Scrolled scrolled(GetParam());
    qvtest::expectNoLeak(40, [&] {
        QV_UnReplaceWnd(scrolled.wnd);
        QV_ReplaceWnd(scrolled.wnd);
        TestHost::Settle();
    });
    const auto openAndClose = [] { Scrolled another(GetParam()); };
    openAndClose();
    const qvtest::LeakGuard guard;
    for (int i = 0; i < 10; ++i)
        openAndClose();
    guard.expectNothingLeft();
}

INSTANTIATE_TEST_SUITE_P(All, ScrollBars,
                         testing::Values(Scrolled::ListView, Scrolled::TreeView, Scrolled::ListBox,
                                         Scrolled::Edit));

class ScrollBar : public SkinFixture {};

TEST_F(ScrollBar, BadWindowsAreRefused) {
    EXPECT_FALSE(QV_ReplaceWnd(nullptr));
    EXPECT_FALSE(QV_ReplaceWnd(reinterpret_cast<HWND>(0x7FFFFFFE)));
    EXPECT_FALSE(QV_ReplaceWnd(GetDesktopWindow()));
    EXPECT_FALSE(QV_UnReplaceWnd(nullptr));
    QVReplaceData data;
    EXPECT_FALSE(QV_GetReplaceData(nullptr, data));
}

TEST_F(ScrollBar, BothBarsMeetInACorner) {
    Scrolled scrolled(Scrolled::ListBox, WS_HSCROLL);
    SendMessageW(scrolled.wnd, LB_SETHORIZONTALEXTENT, 1000, 0);
    ASSERT_TRUE(TestHost::PumpUntil([&] { return scrolled.Data().bHorz && scrolled.Data().bVert; }));
    CRect window;
    GetWindowRect(scrolled.wnd, window);
    EXPECT_TRUE(TestHost::PumpUntil([&] {
        return pixelAt({window.right - 4, window.bottom - 4}) == QV_GetSysColor(QVCLR_SCROLL_TRACK);
    }));
    Picture::ofWindow(scrolled.host).save(qvtest::picturePath(L"scroll-corner"));
}

TEST_F(ScrollBar, CornerHasTheColourThatItsHostSays) {
    Scrolled scrolled(Scrolled::ListBox, WS_HSCROLL);
    SendMessageW(scrolled.wnd, LB_SETHORIZONTALEXTENT, 1000, 0);
    ASSERT_TRUE(TestHost::PumpUntil([&] { return scrolled.Data().bHorz && scrolled.Data().bVert; }));
    CRect window;
    GetWindowRect(scrolled.wnd, window);
    const CPoint corner(window.right - 4, window.bottom - 4);
    const auto becomes = [corner](int index) {
        return TestHost::PumpUntil([=] { return pixelAt(corner) == QV_GetSysColor(index); });
    };
    ASSERT_NE(QV_GetSysColor(QVCLR_LIST), QV_GetSysColor(QVCLR_SCROLL_TRACK));
    EXPECT_TRUE(QV_SetReplaceCorner(scrolled.wnd, QVCLR_LIST));
    EXPECT_TRUE(becomes(QVCLR_LIST));
    QV_SetSkinPath(skinFolder(L"light").c_str());
    EXPECT_TRUE(becomes(QVCLR_LIST));
    EXPECT_TRUE(QV_SetReplaceCorner(scrolled.wnd, -1));
    EXPECT_TRUE(becomes(QVCLR_SCROLL_TRACK));
    QV_UnReplaceWnd(scrolled.wnd);
    EXPECT_FALSE(QV_SetReplaceCorner(scrolled.wnd, QVCLR_LIST));
    EXPECT_FALSE(QV_SetReplaceCorner(nullptr, QVCLR_LIST));
}

TEST_F(ScrollBar, OverlaysAnswerToNoControlIdOfAHost) {
    Scrolled scrolled(Scrolled::ListBox, WS_HSCROLL);
    const HWND host = scrolled.host;
    EXPECT_EQ(scrolled.wnd, GetDlgItem(host, 5));
    for (const int id : {0, -1, 1, 2, 0xFFFF})
        EXPECT_EQ(nullptr, GetDlgItem(host, id)) << id;
}

TEST_F(ScrollBar, AppearsAndGoesWithTheContent) {
    Scrolled scrolled(Scrolled::ListView);
    EXPECT_TRUE(scrolled.Data().bVert);
    const CPoint place = scrolled.Bar().CenterPoint();
    SendMessageW(scrolled.wnd, LVM_DELETEALLITEMS, 0, 0);
    EXPECT_TRUE(TestHost::PumpUntil([&] { return !scrolled.Data().bVert; }));
    EXPECT_TRUE(TestHost::PumpUntil([&] { return pixelAt(place) != QV_GetSysColor(QVCLR_SCROLL_TRACK); }));
}

TEST_F(ScrollBar, WindowMayDieInAnyOrder) {
    { // parent first
        Scrolled scrolled(Scrolled::ListBox);
    }
    { // control first
        Scrolled scrolled(Scrolled::ListBox);
        DestroyWindow(scrolled.wnd);
        TestHost::Settle();
        QVReplaceData data;
        EXPECT_FALSE(QV_GetReplaceData(scrolled.wnd, data));
    }
    { // somebody puts another procedure over the whole chain
        Scrolled scrolled(Scrolled::ListBox);
        WNDCLASSW info = {};
        GetClassInfoW(nullptr, L"LISTBOX", &info);
        SetWindowLongPtrW(scrolled.wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(info.lpfnWndProc));
        QVReplaceData data;
        EXPECT_FALSE(QV_GetReplaceData(scrolled.wnd, data));
    }
}

TEST_F(ScrollBar, ThumbReachesPositionsBeyond16Bits) {
    TestHost host;
    const HWND list =
        CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 20, 20, 200,
                        220, host, nullptr, nullptr, nullptr);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = 100;
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    SendMessageW(list, LVM_SETITEMCOUNT, 1000000, 0);
    ASSERT_TRUE(QV_ReplaceWnd(list));
    TestHost::Settle();
    SCROLLBARINFO info = {};
    info.cbSize = sizeof(info);
    GetScrollBarInfo(list, OBJID_VSCROLL, &info);
    const CPoint start(info.rcScrollBar.left + 8,
                       info.rcScrollBar.top + (info.xyThumbTop + info.xyThumbBottom) / 2);
    ModalScript script;
    script.step("drag to the middle", [&](Driver& user) {
        qvtest::moveMouse(start);
        user.settle();
        HeldButton button;
        for (int y = start.y; y < info.rcScrollBar.top + 110; y += 4)
            qvtest::moveMouse({start.x, y});
        user.waitFor("far down", [&] { return SendMessageW(list, LVM_GETTOPINDEX, 0, 0) > 300000; });
        button.release();
        user.settle();
        user.onUi([&] { host.End(); });
    });
    script.run([&] { host.Loop(); });
}

} // namespace
