// Luminance as 8-bit video code and as percent of the way from black (code 16) to white (code 235), ITU-R
// BT.601.
#pragma once

namespace _qv_commonwnd {

// What the percent scale can show: code 0 is -7.3, code 255 is 109.1, cut to 109.
inline constexpr double kLowestPercent = -7.3;
inline constexpr double kHighestPercent = 109.0;
inline constexpr double kLowestCode = 0.0;
inline constexpr double kHighestCode = 255.0;

// 16 + percent * 219 / 100, bounded to 0..255. NaN gives 0.
double PercentToCode(double percent);

// (code - 16) * 100 / 219, bounded to -7.3..109. NaN gives -7.3.
double CodeToPercent(double code);

// The nearest whole code, halves away from zero; bounded to what an int holds (NaN: 0).
int RoundCode(double code);

// Takes the position of a limit's field, which counts in percent or in codes, into both figures of the limit.
// A percentage that shows the code as it is leaves the code alone: the way there and back would change its
// last bits.
void TakeLuminance(double position, bool inPercent, double& code, double& percent);

} // namespace _qv_commonwnd
