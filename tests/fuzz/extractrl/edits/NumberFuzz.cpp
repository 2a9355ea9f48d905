// Reads any text as a number under any rule, and writes any number.
#include "edits/QVNumberText.h"

#include "fuzz/FuzzInput.h"

#include <cmath>
#include <cstring>

using namespace _qv_extractrl;
using fuzz::Check;

namespace {

// What an input begins with; the rest is the text.
struct Header {
    double lo;
    double hi;
    double value;
    int32_t decimals;
    int32_t steps;
};
static_assert(sizeof(Header) == 32);

bool InRange(double value, const QVNumberRule& rule) {
    return value >= rule.lo && value <= rule.hi;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    Header header;
    if (size < sizeof header)
        return 0;
    std::memcpy(&header, data, sizeof header);
    const QVNumberRule rule = QV_MakeNumberRule(header.lo, header.hi, header.decimals);
    Check(std::isfinite(rule.lo) && std::isfinite(rule.hi) && rule.lo <= rule.hi);
    Check(rule.decimals >= 0 && rule.decimals <= kMostDecimals);
    Check(InRange(QV_BoundNumber(header.value, rule), rule));
    Check(InRange(QV_StepNumber(header.value, header.lo, header.steps, rule), rule));

    double read = 0;
    const std::wstring written = QV_FormatNumber(header.value, rule.decimals);
    Check(!written.empty() && QV_ParseNumber(written, read));

    const std::wstring text = fuzz::UnitsOf(data + sizeof header, size - sizeof header);
    QV_MayBecomeNumber(text, rule);
    constexpr double untouched = 0.625;
    double value = untouched;
    if (!QV_ParseNumber(text, value))
        Check(value == untouched);
    return 0;
}
