// Reads any text as a timecode and as a frame count at any rate, and holds frames, labels and texts to what must
// always be true of them.
#include "QVTimecode.h"

#include "fuzz/FuzzInput.h"

#include <cstring>

using namespace _qv_extractrl;
using _qv_commonctrl::TimecodeFrameRate;
using fuzz::Check;

namespace {

// What an input begins with; the rest is the text.
struct Header {
    double frameRate;
    int32_t dropFrame;
    int32_t framesPerLabel;
    int64_t current;
};
static_assert(sizeof(Header) == 24);

void CheckFrame(long long frame, const TimecodeFrameRate& rate) {
    QVTimecodeLabel label = QV_FrameToLabel(frame, rate);
    Check(QV_LabelToFrame(label, rate) == frame);
    Check(!QV_CorrectLabel(label, rate));
    wchar_t text[QV_TIMECODE_CHARS];
    const int length = QV_FormatTimecode(frame, rate, text, QV_TIMECODE_CHARS);
    Check(length > 0 && length < QV_TIMECODE_CHARS && text[length] == L'\0');
    const std::wstring absolute = std::wstring(L"=") + text;
    long long shown = frame;
    Check(QV_ParseTimecode(absolute.c_str(), rate, 0, shown));
    Check(QV_FrameToLabel(shown, rate).nFrames == label.nFrames);
}

void CheckText(const std::wstring& text, const TimecodeFrameRate& rate, long long current,
               QVTimecodeText kind) {
    constexpr long long untouched = 4711;
    long long frame = untouched;
    if (QV_ParseTimecode(text.c_str(), rate, current, frame, kind))
        CheckFrame(frame, rate);
    else
        Check(frame == untouched);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    Header header;
    if (size < sizeof header)
        return 0;
    std::memcpy(&header, data, sizeof header);
    const TimecodeFrameRate rate(header.frameRate, header.dropFrame, header.framesPerLabel);
    const std::wstring text = fuzz::UnitsOf(data + sizeof header, size - sizeof header);
    CheckFrame(header.current, rate);
    CheckText(text, rate, header.current, QVTimecodeText::Timecode);
    CheckText(text, rate, header.current, QVTimecodeText::FrameCount);
    for (const QVTimecodeField field : {QVTimecodeField::Hours, QVTimecodeField::Frames})
        CheckFrame(QV_StepTimecode(header.current, rate, field, header.dropFrame), rate);
    return 0;
}
