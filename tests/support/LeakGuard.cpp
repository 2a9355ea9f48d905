#include "LeakGuard.h"

#include "Watchdog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace qvtest {
namespace {

constexpr DWORD kEndOfThreadsMs = 10000;
constexpr DWORD kPollMs = 20;

// Threads of the system (file dialogs, the shell) take a moment to end after the window has gone.
Census takeWhenQuiet(const Census& before, long heapTolerance) {
    Census now = Census::take();
    const ULONGLONG end = GetTickCount64() + kEndOfThreadsMs;
    while (!now.moreThan(before, heapTolerance).empty() && GetTickCount64() < end) {
        Sleep(kPollMs);
        now = Census::take();
    }
    return now;
}

DWORD WINAPI endAtOnce(LPVOID) {
    return 0;
}

DWORD WINAPI useLocks(LPVOID) {
    constexpr int kRounds = 300;
    constexpr int kThreadsUnderWay = 16;
    constexpr SIZE_T kBlockBytes = 64;
    for (int i = 0; i < kRounds; ++i) {
        HeapFree(GetProcessHeap(), 0, HeapAlloc(GetProcessHeap(), 0, kBlockBytes));
        FreeLibrary(LoadLibraryW(L"gdi32.dll"));
        const HANDLE thread = CreateThread(nullptr, 0, &endAtOnce, nullptr, 0, nullptr);
        if (i % kThreadsUnderWay == 0)
            WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
    return 0;
}

// The platform makes an event for a lock when threads first wait for it, and keeps it: on a busy machine that may
// be in the middle of the runs. Here the threads meet at the locks of heap, loader and thread list beforehand.
bool meetAtLocks() {
    std::array<HANDLE, 4> threads = {};
    for (HANDLE& thread : threads)
        thread = CreateThread(nullptr, 0, &useLocks, nullptr, 0, nullptr);
    WaitForMultipleObjects(static_cast<DWORD>(threads.size()), threads.data(), TRUE, INFINITE);
    for (const HANDLE thread : threads)
        CloseHandle(thread);
    return true;
}

} // namespace

LeakGuard::LeakGuard() {
    [[maybe_unused]] static const bool met = meetAtLocks();
    Census::take(); // its own first-time blocks
    Census::fillQueueOfFreedBlocks();
    m_before = Census::take();
}

void LeakGuard::expectNothingLeft(long heapTolerance) const {
    EXPECT_EQ("", whatIsLeft(heapTolerance));
}

std::string LeakGuard::whatIsLeft(long heapTolerance) const {
    return takeWhenQuiet(m_before, heapTolerance).moreThan(m_before, heapTolerance);
}

void LeakGuard::allowWhatIsLeftBy(const std::function<void()>& action) {
    const Census before = Census::take();
    action();
    const Census after = Census::take();
    m_before = after.plusGrowth(before, after);
}

namespace {

void repeat(int runs, const std::function<void()>& action) {
    for (int i = 1; i <= runs; ++i) {
        Watchdog::begin("visit " + std::to_string(i) + " of " + std::to_string(runs));
        action();
    }
}

bool isOnlyHandles(const std::string& left) {
    return left.starts_with("kernel handle +") && left.find(',') == std::string::npos;
}

} // namespace

void expectNoLeak(int runs, const std::function<void()>& action, const PlatformLoss& loss) {
    repeat(kWarmUpRuns, action);
    if (loss.bare)
        repeat(kWarmUpRuns, loss.bare);
    const auto leftBySeries = [&] {
        LeakGuard guard;
        if (loss.bare)
            guard.allowWhatIsLeftBy([&] { repeat(runs, loss.bare); });
        repeat(runs, action);
        return guard.whatIsLeft(std::max(runs / 2, 1) + runs * loss.heapBlocks);
    };
    const std::string left = leftBySeries();
    if (!isOnlyHandles(left)) {
        EXPECT_EQ("", left);
        return;
    }
    if (testing::Test::HasFailure())
        return;
    EXPECT_EQ("", leftBySeries()) << "a series of as many runs before left: " << left;
}

} // namespace qvtest
