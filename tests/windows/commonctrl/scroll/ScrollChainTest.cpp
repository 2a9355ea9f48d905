// Replaced scroll bars on windows that others subclass as well, before, after and out of order.
#include "SkinFixture.h"

#include "LeakGuard.h"

using namespace _qv_commonctrl;

namespace {

WNDPROC g_below = nullptr;
int g_seen = 0;

LRESULT CALLBACK Count(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    ++g_seen;
    return CallWindowProcW(g_below, wnd, message, wParam, lParam);
}

class ScrollChain : public SkinFixture {
  protected:
    void SetUp() override {
        SkinFixture::SetUp();
        g_below = nullptr;
        m_wnd = MakeList();
        m_former = GetWindowLongPtrW(m_wnd, GWLP_WNDPROC);
    }

    HWND MakeList() {
        const HWND list = CreateWindowExW(0, L"LISTBOX", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL, 20, 20, 100,
                                          100, m_host, nullptr, nullptr, nullptr);
        for (int i = 0; i < 50; ++i)
            SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"row"));
        return list;
    }

    // Puts a procedure of somebody else above what the window has now.
    void LayAbove() {
        g_below = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(m_wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Count)));
    }

    bool IsReplaced() const {
        QVReplaceData data;
        return QV_GetReplaceData(m_wnd, data) != FALSE;
    }

    bool Answers() const { return SendMessageW(m_wnd, LB_GETCOUNT, 0, 0) == 50; }

    TestHost m_host;
    HWND m_wnd = nullptr;
    LONG_PTR m_former = 0;
};

TEST_F(ScrollChain, GivingBackLeavesTheWindowsOwnProcedure) {
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    EXPECT_NE(m_former, GetWindowLongPtrW(m_wnd, GWLP_WNDPROC));
    ASSERT_TRUE(QV_UnReplaceWnd(m_wnd));
    EXPECT_EQ(m_former, GetWindowLongPtrW(m_wnd, GWLP_WNDPROC));
    EXPECT_TRUE(Answers());
    EXPECT_FALSE(QV_UnReplaceWnd(m_wnd));
}

TEST_F(ScrollChain, ProcedureAboveGoesOnAfterGivingBack) {
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    LayAbove();
    EXPECT_TRUE(IsReplaced());
    ASSERT_TRUE(QV_UnReplaceWnd(m_wnd));
    EXPECT_FALSE(IsReplaced());
    g_seen = 0;
    EXPECT_TRUE(Answers());
    EXPECT_EQ(1, g_seen);
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd)) << "again, below the other";
    EXPECT_TRUE(IsReplaced());
    EXPECT_TRUE(Answers());
    DestroyWindow(m_wnd);
    EXPECT_FALSE(IsReplaced());
}

TEST_F(ScrollChain, ProcedureThatLeavesAfterUsTakesUsAlong) {
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    LayAbove();
    QV_UnReplaceWnd(m_wnd);
    SetWindowLongPtrW(m_wnd, GWLP_WNDPROC, m_former); // past ours, which still stood in between
    EXPECT_TRUE(Answers());
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    EXPECT_TRUE(IsReplaced());
    ASSERT_TRUE(QV_UnReplaceWnd(m_wnd));
    EXPECT_EQ(m_former, GetWindowLongPtrW(m_wnd, GWLP_WNDPROC));
}

TEST_F(ScrollChain, FrameworkObjectMayLeaveFirst) {
    CListBox box;
    ASSERT_TRUE(box.SubclassWindow(m_wnd));
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    EXPECT_NE(nullptr, box.UnsubclassWindow());
    EXPECT_TRUE(IsReplaced());
    EXPECT_TRUE(Answers());
    ASSERT_TRUE(QV_UnReplaceWnd(m_wnd));
    EXPECT_TRUE(Answers());
}

TEST_F(ScrollChain, FrameworkObjectMayComeAndGoAbove) {
    ASSERT_TRUE(QV_ReplaceWnd(m_wnd));
    {
        CListBox box;
        ASSERT_TRUE(box.SubclassWindow(m_wnd));
        EXPECT_TRUE(IsReplaced());
        EXPECT_EQ(50, box.GetCount());
        box.UnsubclassWindow();
    }
    EXPECT_TRUE(IsReplaced());
    ASSERT_TRUE(QV_UnReplaceWnd(m_wnd));
    EXPECT_EQ(m_former, GetWindowLongPtrW(m_wnd, GWLP_WNDPROC));
}

TEST_F(ScrollChain, WindowsLeaveNothingBehind) {
    const auto use = [this] {
        m_wnd = MakeList();
        QV_ReplaceWnd(m_wnd);
        LayAbove();
        QV_UnReplaceWnd(m_wnd);
        QV_ReplaceWnd(m_wnd);
        DestroyWindow(m_wnd);
        TestHost::Settle();
    };
    qvtest::expectNoLeak(50, use);
}

} // namespace
