// One object stands for one window on one thread.
#include "TestWnd.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

// The framework allows this call through null, the language does not: the builds that watch it look away here.
__attribute__((no_sanitize("undefined"))) HWND SafeHandleOf(const CWnd* pWnd) {
    return pWnd->GetSafeHwnd();
}

TEST(HandleMap, NullHasNoObject) {
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));
}

TEST(HandleMap, ObjectCanBeAskedForItsHandleThroughNull) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    EXPECT_EQ(nullptr, SafeHandleOf(wnd.GetDlgItem(77)));
}

TEST(HandleMap, CreatedWindowIsPermanent) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    EXPECT_EQ(&wnd, CWnd::FromHandle(wnd.m_hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
}

TEST(HandleMap, ForeignWindowGetsOneTemporaryObject) {
    const HWND desktop = ::GetDesktopWindow();
    CWnd* const first = CWnd::FromHandle(desktop);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, CWnd::FromHandle(desktop));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(desktop));
    EXPECT_EQ(desktop, first->m_hWnd);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(desktop)); // the object borrowed the window
}

TEST(HandleMap, AttachRefusesWhatIsTaken) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    CWnd other;
    EXPECT_FALSE(other.Attach(nullptr));
    EXPECT_FALSE(other.Attach(wnd.m_hWnd)) << "the window has an object";
    TestWnd second;
    ASSERT_TRUE(second.CreateTop());
    const HWND hWnd = second.UnsubclassWindow();
    EXPECT_FALSE(wnd.Attach(hWnd)) << "the object has a window";
    EXPECT_TRUE(second.SubclassWindow(hWnd));
}

TEST(HandleMap, DetachLeavesTheWindow) {
    HWND hWnd = nullptr;
    {
        CWnd wnd;
        hWnd = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        ASSERT_TRUE(wnd.Attach(hWnd));
        EXPECT_EQ(hWnd, wnd.Detach());
        EXPECT_EQ(nullptr, wnd.m_hWnd);
        EXPECT_EQ(nullptr, wnd.Detach());
    }
    EXPECT_TRUE(::IsWindow(hWnd));
    ::DestroyWindow(hWnd);
}

TEST(HandleMap, DestructorDestroysTheWindow) {
    HWND hWnd = nullptr;
    {
        TestWnd wnd;
        ASSERT_TRUE(wnd.CreateTop());
        hWnd = wnd.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
}

TEST(HandleMap, AttachedWindowIsForgottenWhenDestroyed) {
    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr)));
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(HandleMap, AnotherThreadSeesATemporaryObject) {
    TestWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    const CWnd* seen = &wnd;
    const CWnd* permanent = &wnd;
    std::thread([&] {
        seen = CWnd::FromHandle(wnd.m_hWnd);
        permanent = CWnd::FromHandlePermanent(wnd.m_hWnd);
    }).join();
    EXPECT_NE(nullptr, seen);
    EXPECT_NE(&wnd, seen);
    EXPECT_EQ(nullptr, permanent);
}

TEST(HandleMap, ManyWindowsComeAndGoInAnyOrder) {
    constexpr size_t kCount = 300;
    std::vector<std::unique_ptr<TestWnd>> windows;
    TestWnd parent;
    ASSERT_TRUE(parent.CreateTop());
    for (size_t i = 0; i < kCount; ++i) {
        windows.push_back(std::make_unique<TestWnd>());
        ASSERT_TRUE(windows.back()->CreateChild(parent, static_cast<UINT>(i + 1)));
    }
    for (size_t step : {7u, 5u, 3u, 2u}) {
        for (size_t i = 0; i < windows.size(); i += step)
            windows[i].reset();
        std::erase(windows, nullptr);
        for (const auto& wnd : windows)
            ASSERT_EQ(wnd.get(), CWnd::FromHandlePermanent(wnd->m_hWnd));
    }
}

TEST(HandleMap, EveryPlaceInTheZOrderIsItsConstant) {
    EXPECT_EQ(HWND_TOP, CWnd::wndTop.m_hWnd);
    EXPECT_EQ(HWND_BOTTOM, CWnd::wndBottom.m_hWnd);
    EXPECT_EQ(HWND_TOPMOST, CWnd::wndTopMost.m_hWnd);
    EXPECT_EQ(HWND_NOTOPMOST, CWnd::wndNoTopMost.m_hWnd);
}

} // namespace
