// QVTimecodeFrameRate.h - how frames of a recording are counted and labelled.
//
//   _qv_commonctrl::TimecodeFrameRate ntsc(29.97, 1);   // drop-frame
//   _qv_commonctrl::TimecodeFrameRate pairs(50.0, 0, 2); // 50 frames a second, one label for two frames
#pragma once

namespace _qv_commonctrl {

// Plain copyable record, passed by value.
struct TimecodeFrameRate {
    // Frames a second, as usually written (23.976, 24, 25, 29.97, 30, 47.952, 48, 50, 59.94, 60, 100, 119.88,
    // 120) or exactly (30000.0 / 1001.0). Labels count whole frames, therefore the nearest whole number is
    // the count of frames in a labelled second. Not finite, below 1 or above 1000: taken as 25.
    double dFrameRate = 25.0;

    // 0: non-drop, every label of a second is used. Other values: drop-frame by SMPTE ST 12-1, where it is
    // defined (29.97, 59.94 and 119.88 frames a second); at other rates the field has no effect.
    int nDropFrame = 0;

    // How many successive frames share one label: 1 counts every frame; 2 and 4 are the frame pairs and
    // groups by which rates above 30 are carried in 30-frame labels. Must divide the count of frames in a
    // second, otherwise (and below 1) it is taken as 1.
    int nFramesPerLabel = 1;

    TimecodeFrameRate() = default;
    TimecodeFrameRate(double dRate, int nDrop = 0, int nPerLabel = 1)
        : dFrameRate(dRate), nDropFrame(nDrop), nFramesPerLabel(nPerLabel) {}

    bool operator==(const TimecodeFrameRate&) const = default;
};

} // namespace _qv_commonctrl
