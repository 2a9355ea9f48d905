#include "SoundHeader.h"

#include "ByteFile.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

constexpr size_t kFileHeadBytes = 12; // "RIFF", size, "WAVE"
constexpr size_t kChunkHeadBytes = 8; // name, size
constexpr size_t kFormatBytes = 16;
constexpr size_t kLongFormatBytes = 26; // of a format that says more, up to what the samples are
constexpr std::uint32_t kIntegers = 1;
constexpr std::uint32_t kReals = 3;
constexpr std::uint32_t kLongFormat = 0xFFFE;
constexpr int kMostChunks = 1000; // a file of empty chunks must not keep the window waiting
constexpr LONGLONG kMsPerSecond = 1000;

bool Is(const std::vector<std::uint8_t>& bytes, size_t at, const char* name) {
    return memcmp(&bytes[at], name, 4) == 0;
}

SoundHeader::Samples SamplesOf(const std::vector<std::uint8_t>& chunk) {
    std::uint32_t tag = LittleNumber(chunk, kChunkHeadBytes, 2);
    if (tag == kLongFormat && chunk.size() >= kChunkHeadBytes + kLongFormatBytes)
        tag = LittleNumber(chunk, kChunkHeadBytes + kLongFormatBytes - 2, 2);
    return tag == kIntegers ? SoundHeader::Samples::Integers
           : tag == kReals  ? SoundHeader::Samples::Reals
                            : SoundHeader::Samples::Packed;
}

bool ReadFormat(const std::vector<std::uint8_t>& chunk, SoundHeader& sound, LONGLONG& bytesPerSecond) {
    if (chunk.size() < kChunkHeadBytes + kFormatBytes)
        return false;
    sound.channels = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 2, 2));
    sound.samplesPerSecond = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 4, 4));
    sound.frameBytes = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 12, 2));
    sound.bitsPerSample = static_cast<int>(LittleNumber(chunk, kChunkHeadBytes + 14, 2));
    sound.samples = SamplesOf(chunk);
    bytesPerSecond = LONGLONG{sound.frameBytes} * sound.samplesPerSecond;
    return sound.channels > 0 && sound.samplesPerSecond > 0 && bytesPerSecond > 0;
}

} // namespace

bool ReadSoundHeader(LPCWSTR path, SoundHeader& sound) {
    const CByteFile file(path);
    const std::vector<std::uint8_t> head = file.Bytes(kFileHeadBytes, 0);
    if (head.size() < kFileHeadBytes || !Is(head, 0, "RIFF") || !Is(head, 8, "WAVE"))
        return false;
    SoundHeader read;
    LONGLONG bytesPerSecond = 0;
    LONGLONG at = kFileHeadBytes;
    for (int i = 0; i < kMostChunks; ++i) {
        const std::vector<std::uint8_t> chunk = file.Bytes(kChunkHeadBytes + kLongFormatBytes, at);
        if (chunk.size() < kChunkHeadBytes)
            return false;
        const LONGLONG bytes = LittleNumber(chunk, 4, 4);
        if (Is(chunk, 0, "fmt ") && !ReadFormat(chunk, read, bytesPerSecond))
            return false;
        if (Is(chunk, 0, "data") && bytesPerSecond > 0) {
            read.milliseconds =
                static_cast<int>(std::min<LONGLONG>(bytes * kMsPerSecond / bytesPerSecond, INT_MAX));
            read.dataBegin = at + static_cast<LONGLONG>(kChunkHeadBytes);
            read.dataBytes = bytes;
            sound = read;
            return true;
        }
        at += static_cast<LONGLONG>(kChunkHeadBytes) + bytes + bytes % 2;
    }
    return false;
}
