// SoundOutline.h: the shape of a sound, for drawing it small.
#pragma once

#include "SoundHeader.h"

#include <vector>

struct SoundOutline {
    struct Range {
        float low = 0.0f; // -1 to 1
        float high = 0.0f;
    };
    // The first channels; of each as many ranges as columns, from the sound's begin to its end.
    std::vector<std::vector<Range>> channels;
    static constexpr int kMostChannels = 8;

    bool IsEmpty() const { return channels.empty(); }
};

// Looks at a stretch of the sound in each column, so that an hour takes no longer than a minute. Empty for packed
// samples, for widths that are no sample's and for a file without a frame; silence where the file ends too early.
SoundOutline ReadSoundOutline(LPCWSTR path, const SoundHeader& sound, int columns);
