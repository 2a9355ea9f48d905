// What a level meter shows over time: level, peak mark and clip mark. Plain values, any thread; times are
// milliseconds of any steady clock that only the caller reads.
#pragma once

#include <cstdint>

namespace _qv_extractrl {

constexpr int kMeterLow = 0;
constexpr int kMeterFull = 100;

constexpr uint64_t kPeakHoldMs = 1500;
constexpr uint64_t kPeakFallMsPerPoint = 40; // 100 points in 4 s
constexpr uint64_t kClipHoldMs = 3000;

class QVMeterBallistics {
  public:
    // Takes a new level (bounded to 0..100): the peak follows upwards at once, a level of 100 sets the clip
    // mark. Both are held from the moment that the level drops away from them.
    void SetLevel(int level, uint64_t nowMs);

    // Lets time pass: a peak that was held long enough falls towards the level, an old clip mark goes out.
    void Advance(uint64_t nowMs);

    // Peak down to the level, clip mark out.
    void Reset();

    int Level() const { return m_level; }
    int Peak() const { return m_peak; }
    bool IsClipped() const { return m_clipped; }
    // Nothing changes any more as time passes.
    bool IsAtRest() const { return m_peak == m_level && (!m_clipped || m_level == kMeterFull); }

  private:
    int m_level = kMeterLow;
    int m_peak = kMeterLow;
    bool m_clipped = false;
    uint64_t m_nextFallMs = 0; // when the peak falls by the next point
    uint64_t m_clipEndMs = 0;  // when the clip mark goes out; of no account while the level is full
};

} // namespace _qv_extractrl
