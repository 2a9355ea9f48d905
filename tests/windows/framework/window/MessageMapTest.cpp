// From a message to its handler.
#include "TestWnd.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

const UINT g_registered = ::RegisterWindowMessageW(L"QvFrameworkTestMessage");
constexpr UINT kBaseOnly = WM_APP + 1;
constexpr UINT kBoth = WM_APP + 2;
constexpr UINT kThrow = WM_APP + 3;

class BaseWnd : public TestWnd {
  public:
    std::vector<std::string> m_log;
    std::string Log() const {
        std::string all;
        for (const std::string& entry : m_log)
            all += entry + ";";
        return all;
    }

  protected:
    afx_msg LRESULT OnBaseOnly(WPARAM w, LPARAM l) {
        m_log.push_back("base " + std::to_string(w) + " " + std::to_string(l));
        return 11;
    }
    afx_msg LRESULT OnBoth(WPARAM, LPARAM) {
        m_log.push_back("base both");
        return 12;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(BaseWnd, TestWnd)
    ON_MESSAGE(kBaseOnly, &BaseWnd::OnBaseOnly)
    ON_MESSAGE(kBoth, &BaseWnd::OnBoth)
END_MESSAGE_MAP()

class DerivedWnd : public BaseWnd {
  public:
    UINT m_nLastId = 0;

  protected:
    afx_msg LRESULT OnBoth2(WPARAM w, LPARAM l) { return BaseWnd::OnBoth(w, l) + 100; }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) * 2; }
    afx_msg LRESULT OnThrow(WPARAM w, LPARAM) {
        if (w == 0)
            AfxThrowUserException();
        if (w == 1)
            throw std::runtime_error("a handler's own trouble");
        throw 3;
    }
    afx_msg void OnSize(UINT nType, int cx, int cy) {
        m_log.push_back("size " + std::to_string(nType) + " " + std::to_string(cx) + " " +
                        std::to_string(cy));
    }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) {
        m_log.push_back("move " + std::to_string(nFlags) + " " + std::to_string(point.x) + " " +
                        std::to_string(point.y));
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point) {
        m_log.push_back("wheel " + std::to_string(nFlags) + " " + std::to_string(zDelta) + " " +
                        std::to_string(point.x));
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { m_log.push_back("timer " + std::to_string(nIDEvent)); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTALLKEYS; }
    afx_msg LRESULT OnNcHitTest(CPoint point) { return point.x < 0 ? HTCAPTION : HTCLIENT; }
    afx_msg void OnPlain() { m_log.push_back("plain"); }
    afx_msg void OnRange(UINT nID) { m_log.push_back("range " + std::to_string(nID)); }
    afx_msg BOOL OnEx(UINT nID) {
        m_log.push_back("ex");
        return nID == 70;
    }
    afx_msg void OnEdit() { m_log.push_back("edit changed"); }
    afx_msg void OnClick(NMHDR* pNMHDR, LRESULT* pResult) {
        m_log.push_back("notify " + std::to_string(static_cast<int>(pNMHDR->code)));
        *pResult = 5;
    }
    afx_msg BOOL OnClickEx(UINT nID, NMHDR*, LRESULT*) {
        m_nLastId = nID;
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
    ON_MESSAGE(kBoth, &DerivedWnd::OnBoth2)
    ON_MESSAGE(kThrow, &DerivedWnd::OnThrow)
    ON_REGISTERED_MESSAGE(g_registered, &DerivedWnd::OnRegistered)
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
    ON_WM_GETDLGCODE()
    ON_WM_NCHITTEST()
    ON_COMMAND(40, &DerivedWnd::OnPlain)
    ON_COMMAND_RANGE(50, 59, &DerivedWnd::OnRange)
    ON_COMMAND_EX(70, &DerivedWnd::OnEx)
    ON_COMMAND_EX(71, &DerivedWnd::OnEx)
    ON_EN_CHANGE(5, &DerivedWnd::OnEdit)
    ON_CONTROL_RANGE(BN_CLICKED, 60, 62, &DerivedWnd::OnRange)
    ON_NOTIFY(NM_CLICK, 5, &DerivedWnd::OnClick)
    ON_NOTIFY_EX(NM_RCLICK, 5, &DerivedWnd::OnClickEx)
END_MESSAGE_MAP()

class MessageMap : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_wnd.CreateTop());
        m_child = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, m_wnd.m_hWnd,
                                    reinterpret_cast<HMENU>(5), nullptr, nullptr);
        m_wnd.m_log.clear();
    }
    LRESULT Notify(UINT code) {
        NMHDR header = {m_child, 5, code};
        return m_wnd.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
    }
    DerivedWnd m_wnd;
    HWND m_child = nullptr;
};

TEST_F(MessageMap, BaseMapAnswersWhatTheClassDoesNot) {
    EXPECT_EQ(11, m_wnd.SendMessage(kBaseOnly, 7, -3));
    EXPECT_EQ("base 7 -3;", m_wnd.Log());
}

TEST_F(MessageMap, ClassComesBeforeItsBase) {
    EXPECT_EQ(112, m_wnd.SendMessage(kBoth));
    EXPECT_EQ("base both;", m_wnd.Log());
}

TEST_F(MessageMap, BaseObjectIsUntouchedByDerivedMaps) {
    BaseWnd base;
    ASSERT_TRUE(base.CreateTop());
    EXPECT_EQ(12, base.SendMessage(kBoth));
    EXPECT_EQ(112, m_wnd.SendMessage(kBoth));
    EXPECT_EQ(12, base.SendMessage(kBoth)) << "the look-up is remembered by class";
}

TEST_F(MessageMap, RegisteredMessage) {
    EXPECT_EQ(42, m_wnd.SendMessage(g_registered, 21));
    EXPECT_EQ(0, m_wnd.SendMessage(g_registered + 1, 21));
}

TEST_F(MessageMap, ParametersAreTakenApart) {
    m_wnd.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 40000));
    m_wnd.SendMessage(WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(-5, 6));
    m_wnd.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), MAKELPARAM(-9, 0));
    m_wnd.SendMessage(WM_TIMER, 0x123456789);
    EXPECT_EQ("size 2 300 40000;move 4 -5 6;wheel 8 -120 -9;timer 4886718345;", m_wnd.Log());
    EXPECT_EQ(DLGC_WANTALLKEYS, m_wnd.SendMessage(WM_GETDLGCODE));
    EXPECT_EQ(HTCAPTION, m_wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(-1, 0)));
}

TEST_F(MessageMap, Commands) {
    m_wnd.SendMessage(WM_COMMAND, 40);
    m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(40, 1)); // by accelerator
    m_wnd.SendMessage(WM_COMMAND, 50);
    m_wnd.SendMessage(WM_COMMAND, 59);
    m_wnd.SendMessage(WM_COMMAND, 60); // a click on a control of the range has the same code
    EXPECT_EQ("plain;plain;range 50;range 59;range 60;", m_wnd.Log());
    EXPECT_TRUE(m_wnd.OnCmdMsg(70, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(m_wnd.OnCmdMsg(71, CN_COMMAND, nullptr, nullptr)) << "the handler passed it on";
    EXPECT_FALSE(m_wnd.OnCmdMsg(49, CN_COMMAND, nullptr, nullptr));
}

TEST_F(MessageMap, WhoWouldTakeACommand) {
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(m_wnd.OnCmdMsg(40, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&m_wnd, info.pTarget);
    EXPECT_EQ("", m_wnd.Log());
}

TEST_F(MessageMap, ControlNotificationsGoByCodeAndId) {
    const auto send = [&](WORD id, WORD code) {
        m_wnd.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(m_child));
    };
    send(5, EN_CHANGE);
    send(5, EN_UPDATE);
    send(6, EN_CHANGE);
    send(61, BN_CLICKED);
    EXPECT_EQ("edit changed;range 61;", m_wnd.Log());
}

TEST_F(MessageMap, Notifications) {
    EXPECT_EQ(5, Notify(NM_CLICK));
    EXPECT_EQ("notify -2;", m_wnd.Log());
    EXPECT_EQ(0, Notify(NM_RCLICK));
    EXPECT_EQ(5u, m_wnd.m_nLastId);
    EXPECT_EQ(0, Notify(NM_DBLCLK));
    NMHDR nobody = {nullptr, 0, NM_CLICK};
    EXPECT_EQ(0, m_wnd.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&nobody)));
    EXPECT_EQ(0, m_wnd.SendMessage(WM_NOTIFY, 0, 0)) << "no header at all";
}

TEST_F(MessageMap, ExceptionsStayInside) {
    for (WPARAM kind : {0u, 1u, 2u})
        EXPECT_EQ(0, m_wnd.SendMessage(kThrow, kind));
    EXPECT_EQ(11, m_wnd.SendMessage(kBaseOnly)) << "the window works on";
    EXPECT_EQ(nullptr, CWnd::GetCurrentMessage()->hwnd) << "no message is in work any more";
}

TEST_F(MessageMap, CurrentMessageIsThatOfTheInnermostHandler) {
    class Asking : public DerivedWnd {
      public:
        UINT m_nSeen = 0;
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
            const BOOL done = DerivedWnd::OnWndMsg(message, wParam, lParam, pResult);
            if (message == kBoth)
                SendMessage(kBaseOnly);
            m_nSeen = GetCurrentMessage()->message;
            return done;
        }
    } asking;
    ASSERT_TRUE(asking.CreateTop());
    asking.SendMessage(kBoth);
    EXPECT_EQ(kBoth, asking.m_nSeen);
}

TEST(RuntimeClass, KnowsItsAncestors) {
    CListCtrl list;
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CListCtrl)));
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(list.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_FALSE(list.IsKindOf(nullptr));
    EXPECT_STREQ("CListCtrl", list.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(&list, DYNAMIC_DOWNCAST(CWnd, static_cast<CObject*>(&list)));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CDialog, static_cast<CObject*>(&list)));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CDialog, static_cast<CObject*>(nullptr)));
}

TEST(RuntimeClass, MakesObjectsOfCreatableClassesOnly) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CListCtrl)->CreateObject());
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CListCtrl)));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CDialog)->CreateObject());
    EXPECT_EQ(RUNTIME_CLASS(CListCtrl), CRuntimeClass::FromName("CListCtrl"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CNobody"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(nullptr));
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("CNobody"));
}

} // namespace
