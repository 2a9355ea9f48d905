// WavBytes.h: WAV files for the tests, byte by byte.
#pragma once

#include <cstdint>
#include <string>

inline void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

// How the samples of a WAV file are stored.
struct Format {
    std::uint32_t tag = 1;
    int channels = 1;
    int sampleBytes = 2;
    std::uint32_t longTag = 0; // what a long format's samples really are
};

// A file with an odd chunk before its data.
inline std::string soundFile(const Format& format, const std::string& data) {
    const int frameBytes = format.channels * format.sampleBytes;
    std::string head;
    append(head, format.tag, 2);
    append(head, static_cast<std::uint32_t>(format.channels), 2);
    append(head, 1000, 4); // frames a second
    append(head, static_cast<std::uint32_t>(1000 * frameBytes), 4);
    append(head, static_cast<std::uint32_t>(frameBytes), 2);
    append(head, static_cast<std::uint32_t>(8 * format.sampleBytes), 2);
    if (format.longTag != 0) {
        append(head, 22, 2);
        head += std::string(6, '\0'); // valid bits and places of the channels
        append(head, format.longTag, 2);
        head += std::string(14, '\0');
    }
    std::string file = "RIFF....WAVEfmt ";
    append(file, static_cast<std::uint32_t>(head.size()), 4);
    file += head + "LIST";
    append(file, 3, 4);
    file += std::string(4, 'x') + "data"; // an odd chunk and its filler
    append(file, static_cast<std::uint32_t>(data.size()), 4);
    return file + data;
}
