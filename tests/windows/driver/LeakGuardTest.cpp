#include "LeakGuard.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace qvtest;

namespace {

struct Leak {
    const char* kind;
    std::function<void*()> make;
    std::function<void(void*)> release;
};

void* makeThread() {
    return CreateThread(
        nullptr, 0,
        [](void*) -> DWORD {
            Sleep(INFINITE);
            return 0;
        },
        nullptr, 0, nullptr);
}

void endThread(void* thread) {
    TerminateThread(thread, 0);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
}

void* makeIcon() {
    const BYTE mask[8] = {};
    return CreateIcon(nullptr, 8, 8, 1, 1, mask, mask);
}

void* makeAccelerators() {
    ACCEL entry = {FVIRTKEY, VK_F5, 1};
    return CreateAcceleratorTableW(&entry, 1);
}

void deleteGdi(void* object) {
    DeleteObject(object);
}

// What the census is for: each kind of object left behind is seen, once, under its name.
const std::vector<Leak>& leaks() {
    static const std::vector<Leak> all = {
        {"bitmap +1", [] { return static_cast<void*>(CreateBitmap(8, 8, 1, 32, nullptr)); }, deleteGdi},
        {"brush +1", [] { return static_cast<void*>(CreateSolidBrush(RGB(1, 2, 3))); }, deleteGdi},
        {"pen +1", [] { return static_cast<void*>(CreatePen(PS_SOLID, 1, RGB(1, 2, 3))); }, deleteGdi},
        {"font +1",
         [] {
             LOGFONTW font = {};
             font.lfHeight = -12;
             return static_cast<void*>(CreateFontIndirectW(&font));
         },
         deleteGdi},
        {"region +1", [] { return static_cast<void*>(CreateRectRgn(0, 0, 5, 5)); }, deleteGdi},
        {"memory dc +1", [] { return static_cast<void*>(CreateCompatibleDC(nullptr)); },
         [](void* it) { DeleteDC(static_cast<HDC>(it)); }},
        {"window dc +1", [] { return static_cast<void*>(GetDC(GetDesktopWindow())); },
         [](void* it) { ReleaseDC(GetDesktopWindow(), static_cast<HDC>(it)); }},
        {"window +1",
         [] {
             return static_cast<void*>(
                 CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr));
         },
         [](void* it) { DestroyWindow(static_cast<HWND>(it)); }},
        {"menu +1", [] { return static_cast<void*>(CreatePopupMenu()); },
         [](void* it) { DestroyMenu(static_cast<HMENU>(it)); }},
        {"bitmap +1, icon +1", makeIcon, [](void* it) { DestroyIcon(static_cast<HICON>(it)); }},
        {"accelerator +1", makeAccelerators,
         [](void* it) { DestroyAcceleratorTable(static_cast<HACCEL>(it)); }},
        {"kernel handle +1", [] { return static_cast<void*>(CreateEventW(nullptr, TRUE, FALSE, nullptr)); },
         [](void* it) { CloseHandle(it); }},
        {"kernel handle +1, thread +1", makeThread, endThread},
    };
    return all;
}

class CensusOf : public ::testing::TestWithParam<Leak> {};

TEST_P(CensusOf, OneMoreIsSeenAndGoneAgain) {
    const Leak& leak = GetParam();
    // The input method's window comes with a thread's first window and goes with its last one.
    HWND first = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    leak.release(leak.make()); // first-time caches
    Census::take();
    const Census before = Census::take();
    void* object = leak.make();
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(leak.kind, Census::take().moreThan(before));
    leak.release(object);
    EXPECT_EQ("", Census::take().moreThan(before));
    DestroyWindow(first);
}

std::string leakName(const ::testing::TestParamInfo<Leak>& info) {
    std::string name;
    for (const char* it = info.param.kind; *it; ++it)
        name += isalpha(static_cast<unsigned char>(*it)) ? std::string(1, *it) : std::string();
    return name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, CensusOf, ::testing::ValuesIn(leaks()), leakName);

TEST(LeakGuard, HeapBlocksAreCounted) {
    constexpr int kBlocks = 100;
    Census::take();
    const Census before = Census::take();
    std::vector<void*> blocks(kBlocks);
    for (void*& it : blocks)
        it = HeapAlloc(GetProcessHeap(), 0, 64);
    const Census after = Census::take();
    for (void* it : blocks)
        HeapFree(GetProcessHeap(), 0, it);
    EXPECT_NEAR(after.count("heap block") - before.count("heap block"), kBlocks,
                20); // the census keeps a few of its own
    EXPECT_NE("", after.moreThan(before, kBlocks / 2));
    EXPECT_EQ("", after.moreThan(before, kBlocks * 2));
}

TEST(LeakGuard, CleanCodePasses) {
    expectNoLeak(50, [] {
        HWND window =
            CreateWindowW(L"EDIT", L"x", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
        DeleteObject(CreateSolidBrush(RGB(9, 9, 9)));
        DestroyWindow(window);
    });
}

void loseABrushInEachRun() {
    expectNoLeak(20, [] { CreateSolidBrush(RGB(9, 9, 9)); });
}

TEST(LeakGuard, WhatIsLostInEachRunIsFound) {
    EXPECT_NONFATAL_FAILURE(loseABrushInEachRun(), "brush +20");
}

TEST(LeakGuard, HandleThatIsMadeOnceIsNoLoss) {
    int run = 0;
    expectNoLeak(50, [&run] {
        if (++run == kWarmUpRuns + 10)
            CreateEventW(nullptr, FALSE, FALSE, nullptr); // as of a lock that threads first meet at
    });
}

void makeABrushLate() {
    int run = 0;
    expectNoLeak(20, [&run] {
        if (++run == kWarmUpRuns + 10)
            CreateSolidBrush(RGB(8, 8, 8));
    });
}

TEST(LeakGuard, AnythingElseThatIsMadeOnceIsFound) {
    EXPECT_NONFATAL_FAILURE(makeABrushLate(), "brush +1");
}

} // namespace
