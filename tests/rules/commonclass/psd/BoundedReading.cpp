#include "BoundedReading.h"
#include "ProcessPeak.h"
#include <chrono>
#include <gtest/gtest.h>

namespace psdtest {

namespace {

constexpr std::chrono::milliseconds kLongest{100};
constexpr int kTries = 10;
constexpr std::size_t kMostMemoryBytes = 32 * 1024 * 1024;

} // namespace

Reading readBounded(const Bytes& bytes, Memory memory) {
    const std::size_t peakBefore = memory == Memory::Watched ? processPeakBytes() : 0;
    Reading reading;
    // On a busy machine any single run may have to wait; the shortest of a few tells what the work takes.
    auto shortest = std::chrono::steady_clock::duration::max();
    for (int tries = 0; tries < kTries && shortest >= kLongest; ++tries) {
        const auto begin = std::chrono::steady_clock::now();
        reading = readBytes(bytes);
        shortest = std::min(shortest, std::chrono::steady_clock::now() - begin);
    }
    EXPECT_LT(shortest, kLongest);
    if (memory == Memory::Watched) {
        EXPECT_LE(processPeakBytes(), peakBefore + kMostMemoryBytes);
    }
    EXPECT_TRUE(reading.result == ReadResult::Done || reading.names.empty());
    return reading;
}

} // namespace psdtest
