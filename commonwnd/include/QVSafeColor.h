// QVSafeColor.h: the limits of broadcast-safe colour and what to do with a picture that breaks them.
#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

// Values of tag_QVSafeColor::nAction.
enum QVSafeColorAction : int {
    QVSAFECOLOR_LIMIT = 0,
    QVSAFECOLOR_WARNING = 1,
    QVSAFECOLOR_IGNORE = 2,
};

// Values of tag_QVSafeColor::nLumUnit and nChromaUnit.
enum QVSafeColorUnit : int {
    QVSAFECOLOR_8BIT = 0, // 8-bit code values
    // Luminance: percent of the way from black (code 16) to white (235), ITU-R BT.601.
    QVSAFECOLOR_PERCENT = 1,
};

// The groups of IsDirty and ResetDirty.
enum QVSafeColorGroup : int {
    QVSAFECOLOR_LUMINANCE = 0,
    QVSAFECOLOR_CHROMINANCE = 1, // and every other value
};

// A plain copyable record.
struct QVCOMMONWND_API tag_QVSafeColor {
    double dLumLow;     // lowest legal luminance, 8-bit code value; default 16
    double dLumHigh;    // highest legal luminance, 8-bit code value; default 235
    double dChromaHigh; // highest legal chrominance, percent; default 100
    int nAction;        // QVSafeColorAction; default QVSAFECOLOR_IGNORE
    int nLumUnit;       // unit in which the dialog shows luminance; default QVSAFECOLOR_8BIT
    int nChromaUnit;    // unit of the chrominance field; default QVSAFECOLOR_PERCENT
    int nFlag;          // the host's own; 0 at construction

    // All defaults.
    tag_QVSafeColor();
    tag_QVSafeColor(const tag_QVSafeColor& other) = default;
    // Copies the whole record, nFlag included.
    tag_QVSafeColor& operator=(const tag_QVSafeColor& other);

    // All defaults but nFlag, which stays.
    void Reset();
    // TRUE when the group (QVSafeColorGroup) is exactly at its default - the name says the opposite.
    BOOL IsDirty(int nWhich) const;
    // Sets the group's limits back to their defaults; nothing else changes.
    void ResetDirty(int nWhich);
    // TRUE when all but nFlag are exactly equal.
    BOOL operator==(const tag_QVSafeColor& other) const;
};

} // namespace _qv_commonwnd
