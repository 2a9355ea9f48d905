#include "SoundFile.h"

#include "ByteFile.h"
#include "SoundSamples.h"

#include <algorithm>
#include <cmath>

float SoundFile::Peak(int channel, size_t first, size_t count) const {
    float peak = 0.0f;
    const size_t end = std::min(Frames(), first + count);
    for (size_t i = first; i < end; ++i)
        peak = std::max(peak,
                        std::fabs(samples[i * static_cast<size_t>(channels) + static_cast<size_t>(channel)]));
    return peak;
}

bool LoadSoundFile(LPCWSTR path, SoundFile& sound) {
    SoundHeader header;
    if (!ReadSoundHeader(path, header) || !HasReadableSamples(header))
        return false;
    const CByteFile file(path);
    const LONGLONG there = std::min(header.dataBytes, file.Size() - header.dataBegin);
    const std::vector<std::uint8_t> bytes =
        file.Bytes(static_cast<size_t>(std::max<LONGLONG>(0, there)), header.dataBegin);
    SoundFile read = {header.channels, header.samplesPerSecond, {}};
    const auto step = static_cast<size_t>(header.frameBytes);
    for (size_t frame = 0; frame + step <= bytes.size(); frame += step) {
        for (int channel = 0; channel < header.channels; ++channel)
            read.samples.push_back(SampleOf(header, bytes, frame, channel));
    }
    if (read.samples.empty())
        return false;
    sound = std::move(read);
    return true;
}
