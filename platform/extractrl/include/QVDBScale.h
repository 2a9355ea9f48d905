// QVDBScale.h - the scale of a level meter.
#pragma once

#include "QVExtraCtrlDef.h"

namespace _qv_extractrl {

// Where a level in dB (0 = full scale) stands on a meter, in percent of the meter's length from its foot: the
// piecewise linear scale of IEC 60268-18.
//   below -70 dB: 0      -60 dB: 2.5     -50 dB: 7.5    -40 dB: 15
//         -30 dB: 30     -20 dB: 50      0 dB and above: 100
// Minus infinity (silence) and NaN give 0, plus infinity 100. Any thread.
QVEXTRACTRL_API double QVX_DBToPos(double dB);

} // namespace _qv_extractrl
