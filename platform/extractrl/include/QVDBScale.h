// QVDBScale.h - the scale of a level meter.
#pragma once

#include "QVExtraCtrlDef.h"

namespace _qv_extractrl {

// Where a level in dB (0 = full scale) stands on a meter, in percent of the meter's length from its foot.
// Straight between these points:
//   -120 dB and below: 0    -60 dB: 11    -40 dB: 25    -30 dB: 38    -20 dB: 54
//              -12 dB: 70    -6 dB: 84     -3 dB: 92     0 dB and above: 100
// The points are the marks of the meter frame (QVVUFrame.h). They lie so far apart that the figures of all
// nine have room on the shortest scale that the frame can have, and widest where programmes are levelled,
// above -12 dB, and still leave a quarter of the length to what is quieter than -40 dB. Minus infinity
// (silence) and NaN give 0, plus infinity 100. Any thread.
QVEXTRACTRL_API double QVX_DBToPos(double dB);

} // namespace _qv_extractrl
