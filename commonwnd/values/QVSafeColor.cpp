#include "QVSafeColor.h"

namespace _qv_commonwnd {

namespace {

constexpr double kBlackCode = 16.0;
constexpr double kWhiteCode = 235.0;
constexpr double kFullChroma = 100.0;

} // namespace

tag_QVSafeColor::tag_QVSafeColor() : nFlag(0) {
    Reset();
}

tag_QVSafeColor& tag_QVSafeColor::operator=(const tag_QVSafeColor& other) = default;

void tag_QVSafeColor::Reset() {
    dLumLow = kBlackCode;
    dLumHigh = kWhiteCode;
    dChromaHigh = kFullChroma;
    nAction = QVSAFECOLOR_IGNORE;
    nLumUnit = QVSAFECOLOR_8BIT;
    nChromaUnit = QVSAFECOLOR_PERCENT;
}

BOOL tag_QVSafeColor::IsDirty(int nWhich) const {
    return nWhich == QVSAFECOLOR_LUMINANCE ? dLumLow == kBlackCode && dLumHigh == kWhiteCode
                                           : dChromaHigh == kFullChroma;
}

void tag_QVSafeColor::ResetDirty(int nWhich) {
    if (nWhich == QVSAFECOLOR_LUMINANCE) {
        dLumLow = kBlackCode;
        dLumHigh = kWhiteCode;
    } else {
        dChromaHigh = kFullChroma;
    }
}

BOOL tag_QVSafeColor::operator==(const tag_QVSafeColor& other) const {
    return dLumLow == other.dLumLow && dLumHigh == other.dLumHigh && dChromaHigh == other.dChromaHigh &&
           nAction == other.nAction && nLumUnit == other.nLumUnit && nChromaUnit == other.nChromaUnit;
}

} // namespace _qv_commonwnd
