#include "SoundSamples.h"

#include "ByteFile.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace {

constexpr int kMostIntegerBytes = 4;
constexpr int kRealBytes = 4;
constexpr int kBitsPerByte = 8;

int SampleBytes(const SoundHeader& sound) {
    return sound.channels > 0 ? sound.frameBytes / sound.channels : 0;
}

// Samples of one byte have their zero in the middle; wider ones have a sign.
float IntegerSample(const std::vector<std::uint8_t>& bytes, size_t at, int width) {
    if (width == 1)
        return (static_cast<float>(bytes[at]) - 128.0f) / 128.0f;
    const int unused = kBitsPerByte * (kMostIntegerBytes - width);
    const auto value = static_cast<std::int32_t>(LittleNumber(bytes, at, width) << unused);
    return static_cast<float>(value) / 2147483648.0f;
}

float RealSample(const std::vector<std::uint8_t>& bytes, size_t at) {
    const auto value = std::bit_cast<float>(LittleNumber(bytes, at, kRealBytes));
    return std::isnan(value) ? 0.0f : std::clamp(value, -1.0f, 1.0f);
}

} // namespace

bool HasReadableSamples(const SoundHeader& sound) {
    const int width = SampleBytes(sound);
    switch (sound.samples) {
    case SoundHeader::Samples::Integers:
        return width >= 1 && width <= kMostIntegerBytes;
    case SoundHeader::Samples::Reals:
        return width == kRealBytes;
    default:
        return false;
    }
}

float SampleOf(const SoundHeader& sound, const std::vector<std::uint8_t>& bytes, size_t frame, int channel) {
    const int width = SampleBytes(sound);
    const size_t at = frame + static_cast<size_t>(channel * width);
    return sound.samples == SoundHeader::Samples::Reals ? RealSample(bytes, at)
                                                        : IntegerSample(bytes, at, width);
}
