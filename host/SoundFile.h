// SoundFile.h: the samples of a PCM WAV file.
#pragma once

#include <afxwin.h>

#include <vector>

struct SoundFile {
    int channels = 0;
    int samplesPerSecond = 0;
    int bitsPerSample = 0;
    std::vector<float> samples; // interleaved, -1 to 1

    // Highest magnitude of a channel over `count` sample frames from `first`; 0 past the end.
    float Peak(int channel, size_t first, size_t count) const;
    size_t Frames() const { return channels ? samples.size() / static_cast<size_t>(channels) : 0; }
};

// Reads a 16-bit PCM WAV file. FALSE, `sound` untouched, for anything else and for broken files.
bool LoadSoundFile(LPCWSTR path, SoundFile& sound);
