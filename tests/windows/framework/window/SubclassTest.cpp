// Connecting to windows that somebody else created, and letting them go again.
#include "TestWnd.h"

#include <gtest/gtest.h>

namespace {

WNDPROC ProcedureOf(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
}

class Subclass : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_parent.CreateTop());
        m_edit = ::CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 90, 20, m_parent.m_hWnd,
                                   reinterpret_cast<HMENU>(5), nullptr, nullptr);
        m_former = ProcedureOf(m_edit);
    }
    TestWnd m_parent;
    HWND m_edit = nullptr;
    WNDPROC m_former = nullptr;
};

TEST_F(Subclass, PutsTheFormerProcedureBack) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(m_edit));
    EXPECT_EQ(1, wnd.m_nPreSubclass);
    EXPECT_NE(m_former, ProcedureOf(m_edit));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(m_edit));
    EXPECT_EQ(m_edit, wnd.UnsubclassWindow());
    EXPECT_EQ(m_former, ProcedureOf(m_edit));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(m_edit));
    EXPECT_TRUE(::IsWindow(m_edit));
    EXPECT_EQ(0, wnd.m_nPostNcDestroy);
}

TEST_F(Subclass, MessagesReachTheControl) {
    CEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(5, &m_parent));
    edit.SetWindowText(L"abc");
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(L"abc", text);
    edit.SetSel(1, 2);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(1, start);
    EXPECT_EQ(2, end);
}

TEST_F(Subclass, RefusesBadWindows) {
    TestWnd wnd;
    EXPECT_FALSE(wnd.SubclassWindow(nullptr));
    EXPECT_FALSE(wnd.SubclassDlgItem(99, &m_parent));
    EXPECT_FALSE(wnd.SubclassDlgItem(5, nullptr));
    EXPECT_FALSE(wnd.SubclassWindow(::GetDesktopWindow())) << "a window of another process";
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, wnd.UnsubclassWindow());
    ASSERT_TRUE(wnd.SubclassWindow(m_edit));
    TestWnd second;
    EXPECT_FALSE(second.SubclassWindow(m_edit));
    EXPECT_FALSE(wnd.SubclassWindow(m_edit));
}

TEST_F(Subclass, DestroyedWindowLetsItsObjectGo) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(m_edit));
    m_parent.DestroyWindow();
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(1, wnd.m_nPostNcDestroy);
    EXPECT_EQ(1, m_parent.m_nPostNcDestroy);
}

TEST_F(Subclass, ObjectCanBeUsedAgain) {
    TestWnd wnd;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(wnd.SubclassWindow(m_edit));
        ASSERT_EQ(m_edit, wnd.UnsubclassWindow());
    }
    EXPECT_EQ(m_former, ProcedureOf(m_edit));
    ASSERT_TRUE(wnd.CreateTop());
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_TRUE(wnd.CreateTop());
}

// Somebody who subclassed after us and still calls us.
WNDPROC g_below = nullptr;
int g_foreignCalls = 0;
LRESULT CALLBACK ForeignProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    ++g_foreignCalls;
    return ::CallWindowProcW(g_below, hWnd, message, wParam, lParam);
}

TEST_F(Subclass, ForeignProcedureOnTopKeepsWorking) {
    CEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(m_edit));
    g_below = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(m_edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ForeignProc)));
    g_foreignCalls = 0;
    edit.UnsubclassWindow();
    EXPECT_EQ(&ForeignProc, ProcedureOf(m_edit)) << "what stands above us is not ours to remove";
    ::SetWindowTextW(m_edit, L"still an edit");
    EXPECT_EQ(13, ::SendMessageW(m_edit, EM_LINELENGTH, 0, 0));
    EXPECT_GT(g_foreignCalls, 0);

    CEdit again;
    ASSERT_TRUE(again.SubclassWindow(m_edit));
    EXPECT_EQ(1, again.GetLineCount());
    EXPECT_EQ(&again, CWnd::FromHandlePermanent(m_edit));
    again.UnsubclassWindow();
    ::DestroyWindow(m_edit);
}

TEST(CreateWindowObject, RefusedCreationIsReportedToTheObject) {
    class Refusing : public TestWnd {
        BOOL PreCreateWindow(CREATESTRUCT&) override { return FALSE; }
    } refusing;
    EXPECT_FALSE(refusing.CreateTop());
    EXPECT_EQ(1, refusing.m_nPostNcDestroy);

    TestWnd unknown;
    EXPECT_FALSE(unknown.CreateEx(0, L"no such class", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(1, unknown.m_nPostNcDestroy);
    EXPECT_EQ(nullptr, unknown.m_hWnd);

    TestWnd orphan;
    EXPECT_FALSE(orphan.Create(nullptr, L"", 0, CRect(0, 0, 1, 1), nullptr, 1)) << "a child needs a parent";
}

class FailingWnd : public TestWnd {
  protected:
    afx_msg int OnCreate(LPCREATESTRUCT) { return -1; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(FailingWnd, TestWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(CreateWindowObject, OnCreateCanRefuse) {
    FailingWnd wnd;
    EXPECT_FALSE(wnd.CreateTop());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(1, wnd.m_nPostNcDestroy);
}

// Windows made while another one is being made get their own objects.
class NestedWnd : public TestWnd {
  public:
    TestWnd m_child;

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        return m_child.CreateChild(*this, 3) ? TestWnd::OnCreate(lpCreateStruct) : -1;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(NestedWnd, TestWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(CreateWindowObject, WindowsCanBeMadeInOnCreate) {
    NestedWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    EXPECT_EQ(&wnd.m_child, wnd.GetDlgItem(3));
    EXPECT_EQ(&wnd, wnd.m_child.GetParent());
    wnd.DestroyWindow();
    EXPECT_EQ(1, wnd.m_child.m_nPostNcDestroy);
}

TEST(CreateWindowObject, ObjectMayDeleteItselfAtTheEnd) {
    static int alive = 0;
    struct Heap : CWnd {
        Heap() { ++alive; }
        ~Heap() override { --alive; }
        void PostNcDestroy() override { delete this; }
    };
    auto* const wnd = new Heap;
    ASSERT_TRUE(wnd->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    wnd->DestroyWindow();
    EXPECT_EQ(0, alive);
}

} // namespace
