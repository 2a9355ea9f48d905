// What a number edit shows, accepts and means. Plain functions, any thread. The decimal point is '.'; a typed ','
// means the same.
#pragma once

#include <string>
#include <string_view>

namespace _qv_extractrl {

constexpr int kMostDecimals = 9;

// How a number edit is set up: its range (lo <= hi, both finite) and digits after the point (0..kMostDecimals).
struct QVNumberRule {
    double lo;
    double hi;
    int decimals;
};

// A rule from any input: NaN becomes 0, infinities the largest finite doubles, swapped limits are put in
// order, decimals bounded.
QVNumberRule QV_MakeNumberRule(double lo, double hi, int decimals);

// The nearest value inside the rule's range; lo for NaN.
double QV_BoundNumber(double value, const QVNumberRule& rule);

// The number with the rule's decimals; never "-0". Not finite: "0" with its decimals.
std::wstring QV_FormatNumber(double value, int decimals);

// Reads a text that a number edit may hold. False, and `value` untouched, when it holds no digit or anything else.
bool QV_ParseNumber(std::wstring_view text, double& value);

// Whether a text may stand in the edit while it is being typed: an optional minus sign (only when the range
// goes below zero), digits, and one point with at most the rule's decimals behind it. The value is not looked
// at: a number may be out of range on its way to the right one.
bool QV_MayBecomeNumber(std::wstring_view text, const QVNumberRule& rule);

// The value `steps` steps of size `step` away, on the grid of the rule's decimals and inside its range.
double QV_StepNumber(double value, double step, int steps, const QVNumberRule& rule);

} // namespace _qv_extractrl
