// QVTimecode.h - frames and their timecode labels (SMPTE ST 12-1).
//
//   using namespace _qv_extractrl;
//   _qv_commonctrl::TimecodeFrameRate rate(29.97, 1);               // drop-frame
//   wchar_t text[QV_TIMECODE_CHARS];
//   QV_FormatTimecode(1800, rate, text, QV_TIMECODE_CHARS);         // "00:01:00;02"
//   long long frame = 0;
//   QV_ParseTimecode(L"1.0.0", rate, 0, frame);                     // 1 minute: frame 1800
//
// Frame 0 bears the label 00:00:00:00. Labels run round the 24-hour clock: whole days are kept apart from the
// label (nDays), so that every 64-bit frame has exactly one label and comes back from it. A negative frame
// bears the label of its magnitude with a minus sign, as an offset before zero.
//
// All functions are plain computations: any thread, no failure other than the documented results.
#pragma once

#include "QVExtraCtrlDef.h"
#include "QVTimecodeFrameRate.h"

namespace _qv_extractrl {

// A timecode label in its fields.
struct QVTimecodeLabel {
    bool bNegative = false; // the label of an offset before frame 0; frame 0 itself is never negative
    long long nDays = 0;    // whole 24-hour days passed; not shown
    int nHours = 0;         // 0..23
    int nMinutes = 0;       // 0..59
    int nSeconds = 0;       // 0..59
    int nFrames = 0;        // 0..labels in a second - 1
    int nSubFrame = 0;      // which of the frames that share the label: 0..nFramesPerLabel - 1

    bool operator==(const QVTimecodeLabel&) const = default;
};

// How a rate counts its labels, with all fields of the rate brought into their documented bounds.
struct QVTimecodeCount {
    int nLabelsPerSecond;  // 25 for 25 frames a second, 30 for 29.97
    int nDroppedPerMinute; // labels skipped at the start of each minute except each tenth; 0 for non-drop
    int nFramesPerLabel;   // 1 or more
    long long nLabelsPerMinute; // of a minute that skips labels
    long long nLabelsPerTenMinutes;
    long long nLabelsPerDay;
};
QVEXTRACTRL_API QVTimecodeCount QV_GetTimecodeCount(const _qv_commonctrl::TimecodeFrameRate& rate);

// TRUE (true) when labels of this rate are drop-frame: asked for, and defined at this rate.
QVEXTRACTRL_API bool QV_IsDropFrame(const _qv_commonctrl::TimecodeFrameRate& rate);

// The label of a frame. Every frame has one.
QVEXTRACTRL_API QVTimecodeLabel QV_FrameToLabel(long long nFrame,
                                                const _qv_commonctrl::TimecodeFrameRate& rate);

// The frame of a label, the exact inverse of QV_FrameToLabel. A label that does not exist is corrected first,
// see QV_CorrectLabel. Beyond 64 bits: the nearest 64-bit frame.
QVEXTRACTRL_API long long QV_LabelToFrame(const QVTimecodeLabel& label,
                                          const _qv_commonctrl::TimecodeFrameRate& rate);

// Turns a label that does not exist into one that does: negative fields become 0; a field past its end
// carries into the next larger one (75 frames at 25 are 3 seconds), hours carry into days; a skipped
// drop-frame label becomes the first label of that minute that exists. Returns true when anything was
// changed.
QVEXTRACTRL_API bool QV_CorrectLabel(QVTimecodeLabel& label, const _qv_commonctrl::TimecodeFrameRate& rate);

// The fields of a label that a person changes one by one.
enum class QVTimecodeField { Hours, Minutes, Seconds, Frames };

// The frame whose label has the field nSteps higher (negative: lower), carrying into the other fields and,
// below 00:00:00:00, into negative frames. Frames count one by one. A label that does not exist is corrected.
// Beyond 64 bits: the nearest 64-bit frame.
QVEXTRACTRL_API long long QV_StepTimecode(long long nFrame, const _qv_commonctrl::TimecodeFrameRate& rate,
                                          QVTimecodeField eField, int nSteps);

// Room for any formatted timecode or frame count with its terminator, in characters.
constexpr int QV_TIMECODE_CHARS = 32;

// Writes "HH:MM:SS:FF" ("HH:MM:SS;FF" for drop-frame, three digits of frames for rates above 100, ".n" behind
// it when labels are shared by several frames, '-' before it for a negative frame) and returns its length
// without terminator. A null or too small buffer gets nothing (an empty text where there is room for one) and
// 0.
QVEXTRACTRL_API int QV_FormatTimecode(long long nFrame, const _qv_commonctrl::TimecodeFrameRate& rate,
                                      wchar_t* pText, int nTextChars);

// How a text stands for a frame.
enum class QVTimecodeText {
    Timecode,  // fields of a label
    FrameCount // a plain count of frames
};

// Reads what a person types. Spaces at both ends are left out.
//   timecode: digits fill from the right, two to a field ("1234" is 12 seconds 34 frames; three digits of
//     frames for rates above 100); ':' ';' '.' ',' or spaces part fields, and then fields are right-aligned too
//     ("1.0.0" is one minute) and hold any number of digits; an empty field is 0. More than four fields are
//     refused, a fifth behind a label with shared frames is the sub-frame.
//   frame count: digits; '.' ',' and spaces before groups of three digits are left out ("1,234 567"),
//     elsewhere they are refused ("12.7").
//   '+' or '-' before it: relative to nCurrent ("+10" is ten frames on). '=' before it: absolute, and then a
//     '-' stands for a negative frame ("=-10"). "--10" is the same as "=-10".
// Labels that do not exist are corrected as by QV_CorrectLabel; hours past 23 run round the clock. An
// absolute label stays in the day of nCurrent when that is not negative. Results beyond 64 bits are the
// nearest 64-bit frame. Returns false, and nFrame untouched, for null, no digit at all, a field of more than
// 18 digits, or anything that is not listed here.
QVEXTRACTRL_API bool QV_ParseTimecode(const wchar_t* pText, const _qv_commonctrl::TimecodeFrameRate& rate,
                                      long long nCurrent, long long& nFrame,
                                      QVTimecodeText eText = QVTimecodeText::Timecode);

} // namespace _qv_extractrl
