#include "LuminanceUnits.h"

#include <limits>

namespace _qv_commonwnd {

namespace {

constexpr double kBlackCode = 16.0;
constexpr double kCodesFromBlackToWhite = 219.0;

} // namespace

double PercentToCode(double percent) {
    const double code = kBlackCode + percent * kCodesFromBlackToWhite / 100.0;
    if (!(code > kLowestCode))
        return kLowestCode;
    return code > kHighestCode ? kHighestCode : code;
}

double CodeToPercent(double code) {
    const double percent = (code - kBlackCode) * 100.0 / kCodesFromBlackToWhite;
    if (!(percent > kLowestPercent))
        return kLowestPercent;
    return percent > kHighestPercent ? kHighestPercent : percent;
}

int RoundCode(double code) {
    constexpr double kLargest = std::numeric_limits<int>::max();
    if (code != code)
        return 0;
    if (code >= kLargest)
        return std::numeric_limits<int>::max();
    if (code <= -kLargest)
        return -std::numeric_limits<int>::max();
    return static_cast<int>(code >= 0.0 ? code + 0.5 : code - 0.5);
}

void TakeLuminance(double position, bool inPercent, double& code, double& percent) {
    const bool isCode = code >= kLowestCode && code <= kHighestCode;
    if (inPercent && isCode && position == CodeToPercent(code)) {
        percent = position;
        return;
    }
    code = inPercent ? PercentToCode(position) : position;
    percent = inPercent ? position : CodeToPercent(position);
}

} // namespace _qv_commonwnd
