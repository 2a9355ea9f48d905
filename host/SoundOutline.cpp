#include "SoundOutline.h"

#include "HeaderBytes.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace {

constexpr LONGLONG kMostBytesPerColumn = 8192;
constexpr int kMostIntegerBytes = 4;
constexpr int kRealBytes = 4;
constexpr int kBitsPerByte = 8;

int SampleBytes(const SoundHeader& sound) {
    return sound.channels > 0 ? sound.frameBytes / sound.channels : 0;
}

bool CanBeRead(const SoundHeader& sound) {
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

float SampleAt(const SoundHeader& sound, const std::vector<std::uint8_t>& bytes, size_t at) {
    return sound.samples == SoundHeader::Samples::Reals ? RealSample(bytes, at)
                                                        : IntegerSample(bytes, at, SampleBytes(sound));
}

SoundOutline::Range RangeOf(const SoundHeader& sound, const std::vector<std::uint8_t>& bytes, int channel) {
    SoundOutline::Range range;
    const auto step = static_cast<size_t>(sound.frameBytes);
    for (size_t frame = 0; frame + step <= bytes.size(); frame += step) {
        const float sample =
            SampleAt(sound, bytes, frame + static_cast<size_t>(channel * SampleBytes(sound)));
        range.low = frame == 0 ? sample : std::min(range.low, sample);
        range.high = frame == 0 ? sample : std::max(range.high, sample);
    }
    return range;
}

} // namespace

SoundOutline ReadSoundOutline(LPCWSTR path, const SoundHeader& sound, int columns) {
    const LONGLONG frames = CanBeRead(sound) ? sound.dataBytes / sound.frameBytes : 0;
    if (frames == 0 || columns <= 0)
        return {};
    SoundOutline outline;
    outline.channels.resize(static_cast<size_t>(std::min(sound.channels, SoundOutline::kMostChannels)));
    const LONGLONG mostFrames = std::max<LONGLONG>(1, kMostBytesPerColumn / sound.frameBytes);
    const CByteFile file(path);
    for (int column = 0; column < columns; ++column) {
        const LONGLONG first = frames * column / columns;
        const LONGLONG count = std::clamp<LONGLONG>(frames * (column + 1) / columns - first, 1, mostFrames);
        const std::vector<std::uint8_t> bytes = file.Bytes(static_cast<size_t>(count * sound.frameBytes),
                                                           sound.dataBegin + first * sound.frameBytes);
        for (size_t channel = 0; channel < outline.channels.size(); ++channel)
            outline.channels[channel].push_back(RangeOf(sound, bytes, static_cast<int>(channel)));
    }
    return outline;
}
