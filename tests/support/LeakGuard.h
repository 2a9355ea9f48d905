// Says whether code leaves something behind.
//
//   expectNoLeak(200, [] { openAndCloseTheDialog(); });
//
// or, around a stretch of a test whose code ran once before:
//
//   LeakGuard guard;
//   openAndCloseTheDialog();
//   guard.expectNothingLeft();
#pragma once

#include "Census.h"

#include <functional>
#include <string>

namespace qvtest {

class LeakGuard {
  public:
    LeakGuard();

    // Fails the test when any kind of object has grown or shrunk since the guard was made. heapTolerance:
    // blocks that the heap may have grown by; negative: the heap is not looked at.
    void expectNothingLeft(long heapTolerance = -1) const;
    // The same as a text: what has grown or shrunk; empty when nothing has.
    std::string whatIsLeft(long heapTolerance = -1) const;

    // What an action leaves behind is the platform's own loss: as much again is allowed from here on.
    void allowWhatIsLeftBy(const std::function<void()>& action);

  private:
    Census m_before;
};

// What the platform itself loses in a run, measured without any of our code.
struct PlatformLoss {
    // The same with the system's own windows; what as many runs of it leave behind is allowed. Empty: nothing.
    std::function<void()> bare = {};
    // Heap blocks. The platform's static control of the newer common controls loses one at each font it is given.
    long heapBlocks = 0;
};

// Runs an action ten times to warm up, takes a census, runs it as often as told and expects every count
// unchanged. The heap may have grown by less than one block in two runs: what is lost in each run is found,
// one-time caches are not. An event that the platform makes for the first two threads that meet at a lock falls into
// one such series and not into the next: when a series leaves kernel handles and nothing else, another one of the same
// length must leave nothing at all.
void expectNoLeak(int runs, const std::function<void()>& action, const PlatformLoss& loss = {});

inline constexpr int kWarmUpRuns = 10;

} // namespace qvtest
