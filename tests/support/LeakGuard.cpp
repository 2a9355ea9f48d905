#include "LeakGuard.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvtest {
namespace {

constexpr DWORD kEndOfThreadsMs = 2000;
constexpr DWORD kPollMs = 20;

// Threads of the system (file dialogs, the shell) take a moment to end after the window has gone.
Census takeWhenQuiet(const Census& before, long heapTolerance) {
    Census now = Census::take();
    for (DWORD waited = 0; !now.moreThan(before, heapTolerance).empty() && waited < kEndOfThreadsMs;
         waited += kPollMs) {
        Sleep(kPollMs);
        now = Census::take();
    }
    return now;
}

} // namespace

LeakGuard::LeakGuard() {
    Census::take(); // its own first-time blocks
    Census::fillQueueOfFreedBlocks();
    m_before = Census::take();
}

void LeakGuard::expectNothingLeft(long heapTolerance) const {
    const Census now = takeWhenQuiet(m_before, heapTolerance);
    EXPECT_EQ("", now.moreThan(m_before, heapTolerance));
}

void expectNoLeak(int runs, const std::function<void()>& action) {
    for (int i = 0; i < kWarmUpRuns; ++i)
        action();
    const LeakGuard guard;
    for (int i = 0; i < runs; ++i)
        action();
    guard.expectNothingLeft(std::max(runs / 2, 1));
}

} // namespace qvtest
