// A lock for a few instructions at a time: taking it costs a worker less than a look at the clock. For
// std::lock_guard.
#pragma once

#include <windows.h>

#include <atomic>

namespace _qv_commonwnd {

class SpinLock {
  public:
    void lock() {
        while (m_taken.test_and_set(std::memory_order_acquire))
            ::SwitchToThread(); // its owner may have been interrupted
    }
    void unlock() { m_taken.clear(std::memory_order_release); }

  private:
    std::atomic_flag m_taken;
};

} // namespace _qv_commonwnd
