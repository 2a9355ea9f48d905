#include "QVTimecode.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace _qv_extractrl {

using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr double kDefaultRate = 25.0;
constexpr double kSlowestRate = 1.0;
constexpr double kFastestRate = 1000.0;

constexpr double kColourRatio = 1000.0 / 1001.0;     // 29.97 is 30 times this
constexpr double kColourRatioTolerance = 0.5 / 1001; // nearer to it than to the whole rate
constexpr int kDropLabelsUnit = 30;                  // drop-frame counts are multiples of the 30-frame count
constexpr int kDroppedPerUnit = 2;                   // which skips labels 00 and 01

constexpr int kSecondsPerMinute = 60;
constexpr int kMinutesPerHour = 60;
constexpr int kHoursPerDay = 24;
constexpr int kMinutesPerDay = kHoursPerDay * kMinutesPerHour;
constexpr int kTenMinutes = 10;
constexpr long long kMostSteppedDays = 1'000'000'000;

constexpr unsigned long long kLargestPositive = LLONG_MAX;
constexpr unsigned long long kLargestNegative = kLargestPositive + 1;

int WholeRate(double rate) {
    if (!(rate >= kSlowestRate && rate <= kFastestRate))
        rate = kDefaultRate;
    return static_cast<int>(std::lround(rate));
}

int DroppedPerMinute(const TimecodeFrameRate& rate, int wholeRate, int labelsPerSecond) {
    if (rate.nDropFrame == 0 || labelsPerSecond % kDropLabelsUnit != 0)
        return 0;
    if (std::fabs(rate.dFrameRate / wholeRate - kColourRatio) > kColourRatioTolerance)
        return 0;
    return labelsPerSecond / kDropLabelsUnit * kDroppedPerUnit;
}

// Labels that are skipped before the first label of a minute (counted from midnight).
int DroppedBefore(const QVTimecodeCount& count, int minuteOfDay) {
    return count.nDroppedPerMinute * (minuteOfDay - minuteOfDay / kTenMinutes);
}

bool IsSkipped(const QVTimecodeCount& count, const QVTimecodeLabel& label) {
    return label.nSeconds == 0 && label.nMinutes % kTenMinutes != 0 &&
           label.nFrames < count.nDroppedPerMinute;
}

// Brings a field into 0..size-1 and returns what goes into the next larger field.
long long Carry(int& field, long long value, int size) {
    const long long carried = value / size;
    field = static_cast<int>(value % size);
    return carried;
}

long long SignedFrame(bool negative, unsigned long long magnitude) {
    if (!negative)
        return static_cast<long long>(std::min(magnitude, kLargestPositive));
    return magnitude >= kLargestNegative ? LLONG_MIN : -static_cast<long long>(magnitude);
}

bool IsInBounds(const QVTimecodeLabel& label, const QVTimecodeCount& count) {
    return label.nDays >= 0 && static_cast<unsigned>(label.nHours) < unsigned{kHoursPerDay} &&
           static_cast<unsigned>(label.nMinutes) < unsigned{kMinutesPerHour} &&
           static_cast<unsigned>(label.nSeconds) < unsigned{kSecondsPerMinute} &&
           static_cast<unsigned>(label.nFrames) < static_cast<unsigned>(count.nLabelsPerSecond) &&
           static_cast<unsigned>(label.nSubFrame) < static_cast<unsigned>(count.nFramesPerLabel);
}

void CarryFields(QVTimecodeLabel& label, const QVTimecodeCount& count) {
    const auto atLeastZero = [](auto value) { return std::max<long long>(value, 0); };
    long long carried = Carry(label.nSubFrame, atLeastZero(label.nSubFrame), count.nFramesPerLabel);
    carried = Carry(label.nFrames, atLeastZero(label.nFrames) + carried, count.nLabelsPerSecond);
    carried = Carry(label.nSeconds, atLeastZero(label.nSeconds) + carried, kSecondsPerMinute);
    carried = Carry(label.nMinutes, atLeastZero(label.nMinutes) + carried, kMinutesPerHour);
    carried = Carry(label.nHours, atLeastZero(label.nHours) + carried, kHoursPerDay);
    label.nDays = atLeastZero(label.nDays);
    label.nDays += std::min(carried, LLONG_MAX - label.nDays);
}

// Puts the label right; the caller has worked out the count already.
void Correct(QVTimecodeLabel& label, const QVTimecodeCount& count) {
    if (!IsInBounds(label, count))
        CarryFields(label, count);
    if (IsSkipped(count, label)) {
        label.nFrames = count.nDroppedPerMinute;
        label.nSubFrame = 0;
    }
}

} // namespace

QVTimecodeCount QV_GetTimecodeCount(const TimecodeFrameRate& rate) {
    QVTimecodeCount count;
    const int wholeRate = WholeRate(rate.dFrameRate);
    const bool divides = rate.nFramesPerLabel > 1 && wholeRate % rate.nFramesPerLabel == 0;
    count.nFramesPerLabel = divides ? rate.nFramesPerLabel : 1;
    count.nLabelsPerSecond = wholeRate / count.nFramesPerLabel;
    count.nDroppedPerMinute = DroppedPerMinute(rate, wholeRate, count.nLabelsPerSecond);
    const int fullMinute = count.nLabelsPerSecond * kSecondsPerMinute;
    count.nLabelsPerMinute = fullMinute - count.nDroppedPerMinute;
    count.nLabelsPerTenMinutes = kTenMinutes * count.nLabelsPerMinute + count.nDroppedPerMinute;
    count.nLabelsPerDay = count.nLabelsPerTenMinutes * (kMinutesPerDay / kTenMinutes);
    return count;
}

bool QV_IsDropFrame(const TimecodeFrameRate& rate) {
    return QV_GetTimecodeCount(rate).nDroppedPerMinute != 0;
}

QVTimecodeLabel QV_FrameToLabel(long long nFrame, const TimecodeFrameRate& rate) {
    const QVTimecodeCount count = QV_GetTimecodeCount(rate);
    QVTimecodeLabel label;
    label.bNegative = nFrame < 0;
    // Unsigned, because the smallest 64-bit frame has no positive counterpart.
    unsigned long long index = label.bNegative ? 0ULL - static_cast<unsigned long long>(nFrame)
                                               : static_cast<unsigned long long>(nFrame);
    if (count.nFramesPerLabel > 1) {
        label.nSubFrame = static_cast<int>(index % static_cast<unsigned>(count.nFramesPerLabel));
        index /= static_cast<unsigned>(count.nFramesPerLabel);
    }
    const auto perDay = static_cast<unsigned long long>(count.nLabelsPerDay);
    if (index >= perDay) {
        label.nDays = static_cast<long long>(index / perDay);
        index %= perDay;
    }
    // A day has fewer labels than 2^32, and 32-bit divisions are several times faster.
    auto number = static_cast<unsigned>(index);
    const auto perSecond = static_cast<unsigned>(count.nLabelsPerSecond);
    if (count.nDroppedPerMinute != 0) {
        const auto dropped = static_cast<unsigned>(count.nDroppedPerMinute);
        const auto perTen = static_cast<unsigned>(count.nLabelsPerTenMinutes);
        const unsigned ten = number / perTen;
        const unsigned inTen = number % perTen;
        const unsigned minute =
            inTen < dropped ? 0 : (inTen - dropped) / static_cast<unsigned>(count.nLabelsPerMinute);
        number += dropped * ((kTenMinutes - 1) * ten + minute);
    }
    label.nFrames = static_cast<int>(number % perSecond);
    number /= perSecond;
    label.nSeconds = static_cast<int>(number % kSecondsPerMinute);
    number /= kSecondsPerMinute;
    label.nMinutes = static_cast<int>(number % kMinutesPerHour);
    label.nHours = static_cast<int>(number / kMinutesPerHour);
    return label;
}

long long QV_LabelToFrame(const QVTimecodeLabel& label, const TimecodeFrameRate& rate) {
    const QVTimecodeCount count = QV_GetTimecodeCount(rate);
    QVTimecodeLabel exact = label;
    Correct(exact, count);

    const int minuteOfDay = exact.nHours * kMinutesPerHour + exact.nMinutes;
    const int secondOfDay = minuteOfDay * kSecondsPerMinute + exact.nSeconds;
    const int number =
        secondOfDay * count.nLabelsPerSecond + exact.nFrames - DroppedBefore(count, minuteOfDay);
    const auto inDay =
        static_cast<unsigned long long>(number) * static_cast<unsigned>(count.nFramesPerLabel) +
        static_cast<unsigned>(exact.nSubFrame);
    if (exact.nDays == 0)
        return SignedFrame(exact.bNegative, inDay);

    const auto framesPerDay =
        static_cast<unsigned long long>(count.nLabelsPerDay) * static_cast<unsigned>(count.nFramesPerLabel);
    const auto days = static_cast<unsigned long long>(exact.nDays);
    if (days > kLargestNegative / framesPerDay)
        return SignedFrame(exact.bNegative, kLargestNegative);
    return SignedFrame(exact.bNegative, days * framesPerDay + inDay);
}

bool QV_CorrectLabel(QVTimecodeLabel& label, const TimecodeFrameRate& rate) {
    const QVTimecodeLabel given = label;
    Correct(label, QV_GetTimecodeCount(rate));
    const bool isZero = label.nDays == 0 && label.nHours == 0 && label.nMinutes == 0 && label.nSeconds == 0 &&
                        label.nFrames == 0 && label.nSubFrame == 0;
    if (isZero)
        label.bNegative = false;
    return !(label == given);
}

namespace {

long long AddFrames(long long frame, long long count) {
    long long sum = 0;
    if (!__builtin_add_overflow(frame, count, &sum))
        return sum;
    return count < 0 ? LLONG_MIN : LLONG_MAX;
}

int SecondsOf(QVTimecodeField field) {
    switch (field) {
    case QVTimecodeField::Hours:
        return kMinutesPerHour * kSecondsPerMinute;
    case QVTimecodeField::Minutes:
        return kSecondsPerMinute;
    default:
        return 1;
    }
}

} // namespace

long long QV_StepTimecode(long long nFrame, const TimecodeFrameRate& rate, QVTimecodeField eField,
                          int nSteps) {
    if (eField == QVTimecodeField::Frames)
        return AddFrames(nFrame, nSteps);
    const QVTimecodeCount count = QV_GetTimecodeCount(rate);
    const long long perSecond = count.nLabelsPerSecond;
    const long long labelStep = static_cast<long long>(SecondsOf(eField)) * perSecond * nSteps;
    QVTimecodeLabel label = QV_FrameToLabel(nFrame, rate);
    // Without skipped labels a step is a fixed number of frames. So far from zero that the sums below would
    // not fit, nobody sees a skipped label more or less.
    if (count.nDroppedPerMinute == 0 || label.nDays > kMostSteppedDays)
        return AddFrames(nFrame, labelStep * count.nFramesPerLabel);

    const long long minute = (label.nDays * kHoursPerDay + label.nHours) * kMinutesPerHour + label.nMinutes;
    const long long magnitude = (minute * kSecondsPerMinute + label.nSeconds) * perSecond + label.nFrames;
    const long long stepped = (label.bNegative ? -magnitude : magnitude) + labelStep;
    long long rest = stepped < 0 ? -stepped : stepped;
    label.bNegative = stepped < 0;
    rest = Carry(label.nFrames, rest, count.nLabelsPerSecond);
    rest = Carry(label.nSeconds, rest, kSecondsPerMinute);
    rest = Carry(label.nMinutes, rest, kMinutesPerHour);
    label.nDays = Carry(label.nHours, rest, kHoursPerDay);
    return QV_LabelToFrame(label, rate);
}

} // namespace _qv_extractrl
