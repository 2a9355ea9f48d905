#include "LeakGuard.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvtest {
namespace {

constexpr DWORD kEndOfThreadsMs = 10000;
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

void LeakGuard::allowWhatIsLeftBy(const std::function<void()>& action) {
    const Census before = Census::take();
    action();
    const Census after = Census::take();
    m_before = after.plusGrowth(before, after);
}

namespace {

void repeat(int runs, const std::function<void()>& action) {
    for (int i = 0; i < runs; ++i)
        action();
}

} // namespace

void expectNoLeak(int runs, const std::function<void()>& action, const PlatformLoss& loss) {
    repeat(kWarmUpRuns, action);
    if (loss.bare)
        repeat(kWarmUpRuns, loss.bare);
    LeakGuard guard;
    if (loss.bare)
        guard.allowWhatIsLeftBy([&] { repeat(runs, loss.bare); });
    repeat(runs, action);
    guard.expectNothingLeft(std::max(runs / 2, 1) + runs * loss.heapBlocks);
}

} // namespace qvtest
