#include "QVNumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace _qv_extractrl {

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
// Sign, the 309 digits of the largest double, point, decimals.
constexpr size_t kMostChars = 1 + 309 + 1 + kMostDecimals;
constexpr size_t kMostParsedChars = 400;

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool IsPoint(wchar_t c) {
    return c == L'.' || c == L',';
}

double Finite(double value) {
    return std::isnan(value) ? 0.0 : std::clamp(value, -kLargest, kLargest);
}

// The two parts of "-12.5": how many digits stand before and behind the point. False for any other text.
struct NumberShape {
    bool isNegative = false;
    bool hasPoint = false;
    size_t wholeDigits = 0;
    size_t decimalDigits = 0;
};

bool ReadShape(std::wstring_view text, NumberShape& shape) {
    if (!text.empty() && text.front() == L'-') {
        shape.isNegative = true;
        text.remove_prefix(1);
    }
    for (const wchar_t c : text) {
        if (IsPoint(c) && !shape.hasPoint)
            shape.hasPoint = true;
        else if (IsDigit(c))
            ++(shape.hasPoint ? shape.decimalDigits : shape.wholeDigits);
        else
            return false;
    }
    return true;
}

} // namespace

QVNumberRule QV_MakeNumberRule(double lo, double hi, int decimals) {
    const auto [low, high] = std::minmax({Finite(lo), Finite(hi)});
    return {low, high, std::clamp(decimals, 0, kMostDecimals)};
}

double QV_BoundNumber(double value, const QVNumberRule& rule) {
    if (std::isnan(value))
        return rule.lo;
    return std::clamp(value, rule.lo, rule.hi);
}

std::wstring QV_FormatNumber(double value, int decimals) {
    if (!std::isfinite(value))
        value = 0.0;
    std::array<char, kMostChars + 1> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, std::clamp(decimals, 0, kMostDecimals));
    if (error != std::errc())
        return L"0";
    std::wstring text(buffer.data(), end);
    const bool isZero = text.find_first_of(L"123456789") == std::wstring::npos;
    if (isZero && text.front() == L'-')
        text.erase(0, 1);
    return text;
}

bool QV_ParseNumber(std::wstring_view text, double& value) {
    NumberShape shape;
    if (text.size() > kMostParsedChars || !ReadShape(text, shape) ||
        shape.wholeDigits + shape.decimalDigits == 0)
        return false;
    std::string plain;
    for (const wchar_t c : text)
        plain += IsPoint(c) ? '.' : static_cast<char>(c);
    double parsed = 0.0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), parsed);
    if (error == std::errc::result_out_of_range)
        parsed = shape.wholeDigits > 1 ? (shape.isNegative ? -kLargest : kLargest) : 0.0;
    else if (error != std::errc())
        return false;
    value = parsed;
    return true;
}

bool QV_MayBecomeNumber(std::wstring_view text, const QVNumberRule& rule) {
    NumberShape shape;
    if (!ReadShape(text, shape))
        return false;
    if (shape.isNegative && rule.lo >= 0.0)
        return false;
    if (shape.hasPoint && rule.decimals == 0)
        return false;
    return shape.decimalDigits <= static_cast<size_t>(rule.decimals);
}

double QV_StepNumber(double value, double step, int steps, const QVNumberRule& rule) {
    const double grid = std::pow(10.0, rule.decimals);
    const double moved = QV_BoundNumber(value, rule) + step * steps;
    const double onGrid = std::round(moved * grid) / grid;
    return QV_BoundNumber(std::isfinite(onGrid) ? onGrid : moved, rule);
}

} // namespace _qv_extractrl
