// SoundSamples.h: the samples of a WAV file as numbers from -1 to 1.
#pragma once

#include "SoundHeader.h"

#include <cstdint>
#include <vector>

// Whole numbers of 1 to 4 bytes and reals of 4 bytes can be read; packed samples and widths that are no sample's cannot.
bool HasReadableSamples(const SoundHeader& sound);

// The sample of a channel in the frame that begins at `frame`, which must lie inside `bytes`. The file's samples must be
// readable.
float SampleOf(const SoundHeader& sound, const std::vector<std::uint8_t>& bytes, size_t frame, int channel);
