// SampleFiles.h: small real files for the gallery to open.
#pragma once

#include <string>

namespace gallery {

// A PNG picture of a coloured sky and ground.
void writePicture(const std::wstring& path, int widthPx, int heightPx);

enum class Loudness { Steady, Swelling };

// A 16-bit PCM WAV file: a tone of 440 Hz on the first channel, twice and three times that on the next ones. A swelling
// one rises and fades a few times, in each channel another number of times.
void writeSound(const std::wstring& path, int channels, int samplesPerSecond, double seconds,
                Loudness loudness = Loudness::Steady);

} // namespace gallery
