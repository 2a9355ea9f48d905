// SoundFile.h: all samples of a WAV file.
#pragma once

#include <afxwin.h>

#include <vector>

struct SoundFile {
    int channels = 0;
    int samplesPerSecond = 0;
    std::vector<float> samples; // interleaved, -1 to 1

    // Highest magnitude of a channel over `count` sample frames from `first`; 0 past the end.
    float Peak(int channel, size_t first, size_t count) const;
    size_t Frames() const { return channels ? samples.size() / static_cast<size_t>(channels) : 0; }
};

// Reads a file whose samples are not packed, up to where it ends. False, `sound` untouched, for packed samples, for
// files without a whole frame and for what is no WAV file.
bool LoadSoundFile(LPCWSTR path, SoundFile& sound);
