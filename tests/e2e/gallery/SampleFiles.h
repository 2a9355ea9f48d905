// SampleFiles.h: small real files for the gallery to open.
#pragma once

#include <string>

namespace gallery {

// A PNG picture of a coloured sky and ground.
void writePicture(const std::wstring& path, int widthPx, int heightPx);

// A 16-bit PCM WAV file: a tone of 440 Hz on the first channel, an octave up on each further one.
void writeSound(const std::wstring& path, int channels, int samplesPerSecond, double seconds);

} // namespace gallery
