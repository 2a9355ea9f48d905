#include "QVMeterBallistics.h"

#include <algorithm>

namespace _qv_extractrl {

void QVMeterBallistics::SetLevel(int level, uint64_t nowMs) {
    Advance(nowMs); // with the level that was there until now
    const int before = m_level;
    m_level = std::clamp(level, kMeterLow, kMeterFull);
    if (m_level >= m_peak)
        m_peak = m_level;
    else if (before == m_peak)
        m_nextFallMs = nowMs + kPeakHoldMs;
    if (m_level == kMeterFull)
        m_clipped = true;
    else if (before == kMeterFull)
        m_clipEndMs = nowMs + kClipHoldMs;
}

void QVMeterBallistics::Advance(uint64_t nowMs) {
    if (m_clipped && m_level < kMeterFull && nowMs >= m_clipEndMs)
        m_clipped = false;
    if (m_peak > m_level && nowMs >= m_nextFallMs) {
        const uint64_t points = (nowMs - m_nextFallMs) / kPeakFallMsPerPoint + 1;
        const auto room = static_cast<uint64_t>(m_peak - m_level);
        m_peak -= static_cast<int>(std::min(points, room));
        m_nextFallMs += points * kPeakFallMsPerPoint;
    }
}

void QVMeterBallistics::Reset() {
    m_peak = m_level;
    m_clipped = false;
}

} // namespace _qv_extractrl
