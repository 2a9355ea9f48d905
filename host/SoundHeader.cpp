#include "SoundHeader.h"

#include "HeaderBytes.h"

#include <algorithm>

namespace {

constexpr size_t kFileHeadBytes = 12; // "RIFF", size, "WAVE"
constexpr size_t kChunkHeadBytes = 8; // name, size
constexpr size_t kFormatBytes = 16;
constexpr int kMostChunks = 1000; // a file of empty chunks must not keep the window waiting
constexpr LONGLONG kMsPerSecond = 1000;

bool Is(const std::vector<std::uint8_t>& bytes, size_t at, const char* name) {
    return memcmp(&bytes[at], name, 4) == 0;
}

bool ReadFormat(const std::vector<std::uint8_t>& chunk, SoundHeader& sound, LONGLONG& bytesPerSecond) {
    if (chunk.size() < kChunkHeadBytes + kFormatBytes)
        return false;
    sound.channels = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 2, 2));
    sound.samplesPerSecond = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 4, 4));
    const LONGLONG frameBytes = LittleNumber(chunk, kChunkHeadBytes + 12, 2);
    sound.bitsPerSample = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 14, 2));
    bytesPerSecond = frameBytes * sound.samplesPerSecond;
    return sound.channels > 0 && sound.samplesPerSecond > 0 && bytesPerSecond > 0;
}

} // namespace

bool ReadSoundHeader(LPCWSTR path, SoundHeader& sound) {
    const std::vector<std::uint8_t> head = HeaderBytes(path, kFileHeadBytes);
    if (head.size() < kFileHeadBytes || !Is(head, 0, "RIFF") || !Is(head, 8, "WAVE"))
        return false;
    SoundHeader read;
    LONGLONG bytesPerSecond = 0;
    LONGLONG at = kFileHeadBytes;
    for (int i = 0; i < kMostChunks; ++i) {
        const std::vector<std::uint8_t> chunk = HeaderBytes(path, kChunkHeadBytes + kFormatBytes, at);
        if (chunk.size() < kChunkHeadBytes)
            return false;
        const LONGLONG bytes = LittleNumber(chunk, 4, 4);
        if (Is(chunk, 0, "fmt ") && !ReadFormat(chunk, read, bytesPerSecond))
            return false;
        if (Is(chunk, 0, "data") && bytesPerSecond > 0) {
            read.milliseconds = static_cast<int>(bytes * kMsPerSecond / bytesPerSecond);
            sound = read;
            return true;
        }
        at += static_cast<LONGLONG>(kChunkHeadBytes) + bytes + bytes % 2;
    }
    return false;
}
