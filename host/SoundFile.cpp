#include "SoundFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr int kPcm = 1;
constexpr int kMostChannels = 32;
constexpr size_t kHeaderBytes = 12; // "RIFF", size, "WAVE"
constexpr size_t kFormatBytes = 16;

std::uint32_t Little(const std::vector<char>& file, size_t at, int count) {
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(file[at + static_cast<size_t>(i)]))
                 << (8 * i);
    return value;
}

bool Is(const std::vector<char>& file, size_t at, const char* name) {
    return std::memcmp(&file[at], name, 4) == 0;
}

bool ReadFormat(const std::vector<char>& file, size_t at, SoundFile& sound) {
    sound.channels = static_cast<int>(Little(file, at + 2, 2));
    sound.samplesPerSecond = static_cast<int>(Little(file, at + 4, 4));
    sound.bitsPerSample = static_cast<int>(Little(file, at + 14, 2));
    return Little(file, at, 2) == kPcm && sound.bitsPerSample == 16 && sound.channels >= 1 &&
           sound.channels <= kMostChannels && sound.samplesPerSecond > 0;
}

void ReadSamples(const std::vector<char>& file, size_t at, size_t bytes, SoundFile& sound) {
    sound.samples.resize(bytes / 2);
    for (size_t i = 0; i < sound.samples.size(); ++i)
        sound.samples[i] =
            static_cast<float>(static_cast<std::int16_t>(Little(file, at + 2 * i, 2))) / 32768.0f;
}

} // namespace

float SoundFile::Peak(int channel, size_t first, size_t count) const {
    float peak = 0.0f;
    const size_t end = std::min(Frames(), first + count);
    for (size_t i = first; i < end; ++i)
        peak = std::max(peak,
                        std::fabs(samples[i * static_cast<size_t>(channels) + static_cast<size_t>(channel)]));
    return peak;
}

bool LoadSoundFile(LPCWSTR path, SoundFile& sound) {
    std::ifstream stream(std::filesystem::path(path), std::ios::binary);
    const std::vector<char> file((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    if (file.size() < kHeaderBytes || !Is(file, 0, "RIFF") || !Is(file, 8, "WAVE"))
        return false;
    SoundFile read;
    for (size_t at = kHeaderBytes; at + 8 <= file.size();) {
        const size_t bytes = std::min<size_t>(Little(file, at + 4, 4), file.size() - at - 8);
        if (Is(file, at, "fmt ") && (bytes < kFormatBytes || !ReadFormat(file, at + 8, read)))
            return false;
        if (Is(file, at, "data") && read.channels)
            ReadSamples(file, at + 8, bytes, read);
        at += 8 + bytes + bytes % 2;
    }
    if (read.Frames() == 0)
        return false;
    sound = std::move(read);
    return true;
}
