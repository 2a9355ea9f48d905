// SoundHeader.h: length and format of a WAV file, without its samples.
#pragma once

#include <afxwin.h>

struct SoundHeader {
    enum class Samples { Packed, Integers, Reals }; // Packed: compressed in one way or another

    int channels = 0;
    int samplesPerSecond = 0;
    int bitsPerSample = 0;
    int milliseconds = 0;
    Samples samples = Samples::Packed;
    int frameBytes = 0;     // one sample of every channel, when not packed
    LONGLONG dataBegin = 0; // place of the first frame in the file
    LONGLONG dataBytes = 0; // as the file says; it may be shorter
};

// Reads the chunks' heads of a WAV file of any sample format. False, `sound` untouched, for anything else and for
// files whose format or data chunk is missing or broken.
bool ReadSoundHeader(LPCWSTR path, SoundHeader& sound);
