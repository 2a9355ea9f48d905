// SoundHeader.h: length and format of a WAV file, without its samples.
#pragma once

#include <afxwin.h>

struct SoundHeader {
    int channels = 0;
    int samplesPerSecond = 0;
    int bitsPerSample = 0;
    int milliseconds = 0;
};

// Reads the chunks' heads of a WAV file of any sample format. False, `sound` untouched, for anything else and for
// files whose format or data chunk is missing or broken.
bool ReadSoundHeader(LPCWSTR path, SoundHeader& sound);
