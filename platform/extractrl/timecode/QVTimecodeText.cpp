#include "QVTimecode.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace _qv_extractrl {

using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr size_t kMostFieldDigits = 18; // what a 64-bit number surely holds
constexpr size_t kDigitsPerField = 2;
constexpr size_t kDigitsOfManyFrames = 3;
constexpr int kMostTwoDigitLabels = 100;
constexpr size_t kLabelFields = 4; // hours, minutes, seconds, frames
constexpr long long kHoursPerDay = 24;
constexpr std::wstring_view kFieldSeparators = L":;.,";

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool IsSpace(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\u00A0' || c == L'\u3000';
}

std::wstring_view Trim(std::wstring_view text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

size_t FrameDigits(const QVTimecodeCount& count) {
    return count.nLabelsPerSecond > kMostTwoDigitLabels ? kDigitsOfManyFrames : kDigitsPerField;
}

long long AddSaturated(long long a, long long b) {
    long long sum = 0;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return b < 0 ? LLONG_MIN : LLONG_MAX;
}

// What stands before the digits: how the number is to be taken.
struct Prefix {
    bool isRelative = false;
    bool isNegative = false;
};

Prefix TakePrefix(std::wstring_view& text) {
    Prefix prefix;
    if (text.empty())
        return prefix;
    const wchar_t first = text.front();
    const wchar_t second = text.size() > 1 ? text[1] : L'\0';
    if ((first == L'=' || first == L'-') && second == L'-') {
        prefix.isNegative = true;
        text.remove_prefix(2);
    } else if (first == L'+' || first == L'-') {
        prefix.isRelative = true;
        prefix.isNegative = first == L'-';
        text.remove_prefix(1);
    } else if (first == L'=') {
        text.remove_prefix(1);
    }
    text = Trim(text);
    return prefix;
}

// Splits "1.0.0" into its fields. Spaces beside another separator and runs of spaces part only once.
bool SplitFields(std::wstring_view text, std::vector<std::wstring>& fields) {
    fields.assign(1, std::wstring());
    bool spacePending = false;
    bool afterSeparator = false;
    for (const wchar_t c : text) {
        if (IsSpace(c)) {
            spacePending = true;
        } else if (kFieldSeparators.find(c) != std::wstring_view::npos) {
            fields.emplace_back();
            spacePending = false;
            afterSeparator = true;
        } else if (IsDigit(c)) {
            if (spacePending && !afterSeparator)
                fields.emplace_back();
            fields.back() += c;
            spacePending = afterSeparator = false;
        } else {
            return false;
        }
        if (fields.size() > kLabelFields + 1)
            return false;
    }
    return true;
}

// Digits without separators, cut from the right.
void CutFields(std::vector<std::wstring>& fields, size_t frameDigits) {
    const std::wstring digits = fields.front();
    std::wstring_view rest = digits;
    fields.clear();
    for (size_t width = frameDigits; fields.size() + 1 < kLabelFields && rest.size() > width;
         width = kDigitsPerField) {
        fields.emplace_back(rest.substr(rest.size() - width));
        rest.remove_suffix(width);
    }
    fields.emplace_back(rest);
    std::reverse(fields.begin(), fields.end());
}

bool ReadNumber(const std::wstring& digits, long long& number) {
    if (digits.size() > kMostFieldDigits)
        return false;
    number = 0;
    for (const wchar_t digit : digits)
        number = number * 10 + (digit - L'0');
    return true;
}

// A length of time in labels' fields, hours not bounded. Fields are 64 bits wide, wider than a label's.
struct WideFields {
    long long hours = 0, minutes = 0, seconds = 0, frames = 0, subFrame = 0;
};

bool ReadFields(std::wstring_view text, const QVTimecodeCount& count, WideFields& wide) {
    std::vector<std::wstring> fields;
    if (!SplitFields(text, fields))
        return false;
    if (fields.size() == 1)
        CutFields(fields, FrameDigits(count));
    if (fields.size() == kLabelFields + 1) {
        if (count.nFramesPerLabel == 1 || !ReadNumber(fields.back(), wide.subFrame))
            return false;
        fields.pop_back();
    }
    bool hasDigit = false;
    long long* const targets[] = {&wide.frames, &wide.seconds, &wide.minutes, &wide.hours};
    for (size_t i = 0; i < fields.size(); ++i) {
        const std::wstring& field = fields[fields.size() - 1 - i];
        hasDigit = hasDigit || !field.empty();
        if (!ReadNumber(field, *targets[i]))
            return false;
    }
    return hasDigit;
}

// Carries every field into the next larger one, so that all but the hours fit a label.
QVTimecodeLabel CarryWide(WideFields wide, const QVTimecodeCount& count, long long& hours) {
    const auto carry = [](long long& from, long long size, long long& to) {
        to += from / size;
        from %= size;
    };
    carry(wide.subFrame, count.nFramesPerLabel, wide.frames);
    carry(wide.frames, count.nLabelsPerSecond, wide.seconds);
    carry(wide.seconds, 60, wide.minutes);
    carry(wide.minutes, 60, wide.hours);
    hours = wide.hours;
    QVTimecodeLabel label;
    label.nMinutes = static_cast<int>(wide.minutes);
    label.nSeconds = static_cast<int>(wide.seconds);
    label.nFrames = static_cast<int>(wide.frames);
    label.nSubFrame = static_cast<int>(wide.subFrame);
    label.nHours = static_cast<int>(hours % kHoursPerDay);
    return label;
}

bool ParseLabel(std::wstring_view text, const Prefix& prefix, const TimecodeFrameRate& rate,
                long long current, long long& frame) {
    const QVTimecodeCount count = QV_GetTimecodeCount(rate);
    WideFields wide;
    if (!ReadFields(text, count, wide))
        return false;
    long long hours = 0;
    QVTimecodeLabel label = CarryWide(wide, count, hours);
    if (prefix.isRelative) {
        label.nDays = hours / kHoursPerDay; // a distance is not a time of day
        label.bNegative = prefix.isNegative;
        frame = AddSaturated(current, QV_LabelToFrame(label, rate));
        return true;
    }
    label.bNegative = prefix.isNegative;
    if (!prefix.isNegative && current > 0)
        label.nDays = QV_FrameToLabel(current, rate).nDays;
    frame = QV_LabelToFrame(label, rate);
    return true;
}

// Whether the separators of a count stand before groups of three digits, as in "1,234 567"; "12.7" is no
// count.
bool IsGrouped(std::wstring_view text) {
    const auto isSeparator = [](wchar_t c) { return c == L'.' || c == L',' || IsSpace(c); };
    constexpr ptrdiff_t kGroupDigits = 3;
    auto end = text.end();
    while (true) {
        const auto digits = std::find_if(std::make_reverse_iterator(end), text.rend(), isSeparator);
        if (digits == text.rend())
            return true;
        const auto group = digits.base();
        if (end - group != kGroupDigits)
            return false;
        end = group - 1;
    }
}

bool ParseCount(std::wstring_view text, const Prefix& prefix, long long current, long long& frame) {
    if (!IsGrouped(text))
        return false;
    unsigned long long magnitude = 0;
    bool hasDigit = false;
    constexpr unsigned long long kLargest = static_cast<unsigned long long>(LLONG_MAX) + 1;
    for (const wchar_t c : text) {
        if (IsDigit(c)) {
            hasDigit = true;
            magnitude = std::min(
                std::min(magnitude, kLargest / 10 + 1) * 10 + static_cast<unsigned>(c - L'0'), kLargest);
        } else if (c != L'.' && c != L',' && !IsSpace(c)) {
            return false;
        }
    }
    if (!hasDigit)
        return false;
    long long value = 0;
    if (prefix.isNegative)
        value = magnitude == kLargest ? LLONG_MIN : -static_cast<long long>(magnitude);
    else
        value = static_cast<long long>(std::min<unsigned long long>(magnitude, LLONG_MAX));
    frame = prefix.isRelative ? AddSaturated(current, value) : value;
    return true;
}

void AppendNumber(std::wstring& text, int number, size_t digits) {
    const std::wstring plain = std::to_wstring(number);
    text.append(digits > plain.size() ? digits - plain.size() : 0, L'0');
    text += plain;
}

} // namespace

int QV_FormatTimecode(long long nFrame, const TimecodeFrameRate& rate, wchar_t* pText, int nTextChars) {
    if (!pText || nTextChars <= 0)
        return 0;
    *pText = L'\0';
    const QVTimecodeCount count = QV_GetTimecodeCount(rate);
    const QVTimecodeLabel label = QV_FrameToLabel(nFrame, rate);
    std::wstring text;
    if (label.bNegative)
        text += L'-';
    AppendNumber(text, label.nHours, kDigitsPerField);
    text += L':';
    AppendNumber(text, label.nMinutes, kDigitsPerField);
    text += L':';
    AppendNumber(text, label.nSeconds, kDigitsPerField);
    text += count.nDroppedPerMinute != 0 ? L';' : L':';
    AppendNumber(text, label.nFrames, FrameDigits(count));
    if (count.nFramesPerLabel > 1) {
        text += L'.';
        AppendNumber(text, label.nSubFrame, 1);
    }
    if (text.size() >= static_cast<size_t>(nTextChars))
        return 0;
    text.copy(pText, text.size());
    pText[text.size()] = L'\0';
    return static_cast<int>(text.size());
}

bool QV_ParseTimecode(const wchar_t* pText, const TimecodeFrameRate& rate, long long nCurrent,
                      long long& nFrame, QVTimecodeText eText) {
    if (!pText)
        return false;
    std::wstring_view text = Trim(pText);
    const Prefix prefix = TakePrefix(text);
    return eText == QVTimecodeText::FrameCount ? ParseCount(text, prefix, nCurrent, nFrame)
                                               : ParseLabel(text, prefix, rate, nCurrent, nFrame);
}

} // namespace _qv_extractrl
