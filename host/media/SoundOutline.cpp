#include "SoundOutline.h"

#include "ByteFile.h"
#include "SoundSamples.h"

#include <algorithm>

namespace {

constexpr LONGLONG kMostBytesPerColumn = 8192;

SoundOutline::Range RangeOf(const SoundHeader& sound, const std::vector<std::uint8_t>& bytes, int channel) {
    SoundOutline::Range range;
    const auto step = static_cast<size_t>(sound.frameBytes);
    for (size_t frame = 0; frame + step <= bytes.size(); frame += step) {
        const float sample = SampleOf(sound, bytes, frame, channel);
        range.low = frame == 0 ? sample : std::min(range.low, sample);
        range.high = frame == 0 ? sample : std::max(range.high, sample);
    }
    return range;
}

} // namespace

SoundOutline ReadSoundOutline(LPCWSTR path, const SoundHeader& sound, int columns) {
    const LONGLONG frames = HasReadableSamples(sound) ? sound.dataBytes / sound.frameBytes : 0;
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
