#include "QVTimecodeTyping.h"

#include "QVEditTools.h"

#include <algorithm>
#include <utility>

namespace _qv_extractrl {

namespace {

constexpr int kFields = 4;
constexpr int kFieldDigits = 2;
constexpr int kFieldPitch = kFieldDigits + 1; // a field and its separator
constexpr int kLastField = kFields - 1;
constexpr int kLargestTwoDigitCount = 100;
constexpr int kMostEntryChars = 24;

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool IsSeparator(wchar_t c) {
    return c == L':' || c == L';' || c == L'.' || c == L',' || c == L' ';
}

bool IsPrefix(wchar_t c) {
    return c == L'+' || c == L'-' || c == L'=';
}

int Length(const std::wstring& text) {
    return static_cast<int>(text.size());
}

std::wstring Part(const std::wstring& text, int from, int length) {
    return text.substr(static_cast<size_t>(from), static_cast<size_t>(length));
}

std::wstring Zeros(int count) {
    return std::wstring(static_cast<size_t>(std::max(count, 0)), L'0');
}

bool StartsWith(const std::wstring& text, wchar_t c) {
    return !text.empty() && text.front() == c;
}

bool IsRelative(const std::wstring& text) {
    if (text.empty())
        return false;
    if (text[0] == L'+')
        return true;
    return text[0] == L'-' && (text.size() < 2 || text[1] != L'-');
}

bool IsAllDigits(const std::wstring& text) {
    return std::all_of(text.begin(), text.end(), IsDigit);
}

// "-00:00:01:00" as it was copied from a timecode edit: a sign, not a distance.
bool IsNegativeLabel(const std::wstring& text) {
    return !text.empty() && text[0] == L'-' &&
           std::count_if(text.begin() + 1, text.end(), IsSeparator) >= kLastField;
}

// "-10" as it was copied from a field of counts.
bool IsNegativeCount(const std::wstring& text) {
    return text.size() > 1 && text[0] == L'-' && IsDigit(text[1]);
}

// Whether a text may stand in a field of counts while it is being typed.
bool MayBecomeCount(const std::wstring& text) {
    const size_t digits = text.find_first_not_of(L"+-=");
    const std::wstring prefix = text.substr(0, digits);
    return (prefix.empty() || prefix == L"+" || prefix == L"-" || prefix == L"=" || prefix == L"--" ||
            prefix == L"=-") &&
           (digits == std::wstring::npos ||
            std::all_of(text.begin() + static_cast<ptrdiff_t>(digits), text.end(), IsDigit));
}

// How many characters stand before the first field of a label.
int SignChars(const std::wstring& label) {
    return !label.empty() && label[0] == L'-' ? 1 : 0;
}

} // namespace

QVTimecodeTyping::QVTimecodeTyping() : m_text(FrameText()) {
}

void QVTimecodeTyping::SetMode(QVTimecodeText mode) {
    Drop();
    m_mode = mode;
    ShowText(FrameText());
}

void QVTimecodeTyping::SetRate(const _qv_commonctrl::TimecodeFrameRate& rate) {
    Drop();
    m_rate = rate;
    ShowText(FrameText());
}

void QVTimecodeTyping::SetFrame(long long frame) {
    if (frame == m_frame)
        return;
    Drop();
    m_frame = frame;
    m_undoFrame = frame;
    ShowText(FrameText());
}

long long QVTimecodeTyping::Frame() const {
    long long typed = 0;
    bool isRelative = false;
    if (!m_isTyping)
        return m_frame;
    return ReadTyped(typed, isRelative) ? typed : m_baseFrame;
}

bool QVTimecodeTyping::TakeNews() {
    return std::exchange(m_toldFrame, m_frame) != m_frame;
}

// The field and its parts.

int QVTimecodeTyping::FrameDigits() const {
    return QV_GetTimecodeCount(m_rate).nLabelsPerSecond > kLargestTwoDigitCount ? kFieldDigits + 1
                                                                                : kFieldDigits;
}

int QVTimecodeTyping::FieldWidth(int field) const {
    return field == kLastField ? FrameDigits() : kFieldDigits;
}

int QVTimecodeTyping::MostEntryDigits() const {
    return kLastField * kFieldDigits + FrameDigits();
}

bool QVTimecodeTyping::IsAllSelected() const {
    return !m_text.empty() && m_selection.from == 0 && m_selection.to >= Length(m_text);
}

int QVTimecodeTyping::SelectedField() const {
    return std::clamp((m_selection.from - SignChars(m_text)) / kFieldPitch, 0, kLastField);
}

QVTextSpan QVTimecodeTyping::SpanOfField(int field) const {
    const int length = Length(m_text);
    const int from = std::min(SignChars(m_text) + field * kFieldPitch, length);
    return {from, std::min(from + FieldWidth(field), length)};
}

void QVTimecodeTyping::SelectField(int field) {
    m_selection = SpanOfField(field);
}

void QVTimecodeTyping::SelectAll() {
    m_selection = {0, Length(m_text)};
}

std::wstring QVTimecodeTyping::FrameText() const {
    if (!IsLabel())
        return std::to_wstring(m_frame);
    wchar_t label[QV_TIMECODE_CHARS];
    QV_FormatTimecode(m_frame, m_rate, label, QV_TIMECODE_CHARS);
    return label;
}

// A field that gets another text selects nothing of it.
void QVTimecodeTyping::ShowText(std::wstring text) {
    if (text == m_text)
        return;
    m_text = std::move(text);
    m_selection = {};
}

// From the text to the frame.

bool QVTimecodeTyping::Parse(const std::wstring& text, long long current, long long& frame) const {
    return QV_ParseTimecode(text.c_str(), m_rate, current, frame, m_mode);
}

bool QVTimecodeTyping::ReadTyped(long long& frame, bool& isRelative) const {
    // Unless it was typed first, a minus is the sign of the frame that was there.
    std::wstring text = m_entry;
    if (text.empty())
        text = m_isDistance || StartsWith(m_text, L'=') ? m_text : L"=" + m_text;
    isRelative = IsRelative(text);
    return Parse(text, m_baseFrame, frame);
}

void QVTimecodeTyping::Begin() {
    if (m_isTyping)
        return;
    m_isTyping = true;
    m_baseFrame = m_frame;
    m_fieldDigits = 0;
}

void QVTimecodeTyping::Drop() {
    m_isTyping = false;
    m_entry.clear();
    m_fieldDigits = 0;
    m_isDistance = false;
}

// Takes the text as far as it is typed; the text itself stays as it is.
void QVTimecodeTyping::TakeTyped() {
    Begin();
    long long frame = 0;
    bool isRelative = false;
    // A distance counts when it is finished; a text that stands for no frame is as if nothing were typed.
    m_frame = ReadTyped(frame, isRelative) && !isRelative ? frame : m_baseFrame;
}

void QVTimecodeTyping::Finish() {
    if (!m_isTyping)
        return;
    const long long frame = Frame();
    if (frame != m_baseFrame)
        m_undoFrame = m_baseFrame;
    Drop();
    m_frame = frame;
    ShowText(FrameText());
}

// A finished change by the user.
void QVTimecodeTyping::TakeFrame(long long frame) {
    const bool selectAll = !IsLabel() || IsAllSelected();
    const int field = SelectedField();
    if (frame != m_frame)
        m_undoFrame = m_frame;
    m_frame = frame;
    ShowText(FrameText());
    if (selectAll)
        SelectAll();
    else
        SelectField(field);
}

bool QVTimecodeTyping::TakeText(std::wstring text) {
    long long frame = 0;
    if (IsLabel() ? IsNegativeLabel(text) : IsNegativeCount(text))
        text.insert(0, L"=");
    if (!Parse(text, Frame(), frame))
        return false;
    Drop();
    TakeFrame(frame);
    return true;
}

void QVTimecodeTyping::GoBack() {
    const long long before = m_isTyping ? m_baseFrame : m_undoFrame;
    Drop();
    TakeFrame(before);
}

// Typing.

bool QVTimecodeTyping::Type(wchar_t typed) {
    return IsLabel() ? TypeLabelChar(typed) : TypeCountChar(typed);
}

void QVTimecodeTyping::ReplaceSelected(const std::wstring& typed) {
    m_text.replace(static_cast<size_t>(m_selection.from),
                   static_cast<size_t>(m_selection.to - m_selection.from), typed);
    m_selection.from += Length(typed);
    m_selection.to = m_selection.from;
}

bool QVTimecodeTyping::TypeCountChar(wchar_t typed) {
    const auto [from, to] = m_selection;
    std::wstring would = m_text;
    would.replace(static_cast<size_t>(from), static_cast<size_t>(to - from), 1, typed);
    const bool isFirst = would.size() == 1;
    const bool isAccepted =
        MayBecomeCount(would) && Length(would) <= kMostEntryChars && (typed != L'+' || isFirst);
    if (!QV_TakesTyped(typed, isAccepted, m_inFraction))
        return false;
    Begin();
    m_isDistance = isFirst ? typed == L'+' || typed == L'-' : m_isDistance && from > 0;
    ReplaceSelected(std::wstring(1, typed));
    TakeTyped();
    return true;
}

// Takes characters out of a count.
void QVTimecodeTyping::EraseCount(int from, int to) {
    Begin();
    m_isDistance = m_isDistance && from > 0;
    m_selection = {from, to};
    ReplaceSelected(L"");
    TakeTyped();
}

bool QVTimecodeTyping::TypeLabelChar(wchar_t typed) {
    if (!m_entry.empty() || IsPrefix(typed) || (IsAllSelected() && !m_isTyping))
        return TypeEntryChar(typed);
    if (IsDigit(typed)) {
        TypeFieldDigit(SelectedField(), typed);
    } else if (IsSeparator(typed)) {
        const int next = std::min(SelectedField() + 1, kLastField);
        Finish();
        SelectField(next);
    } else {
        return false;
    }
    return true;
}

// Typing over the whole label: digits fill from the right.
bool QVTimecodeTyping::TypeEntryChar(wchar_t typed) {
    const bool isPrefixPlace =
        m_entry.empty() || (m_entry.size() == 1 && IsPrefix(m_entry[0]) && typed == L'-');
    if (!IsDigit(typed) && !IsSeparator(typed) && !(IsPrefix(typed) && isPrefixPlace))
        return false;
    std::wstring longer = m_entry + typed;
    if (Length(longer) > (IsAllDigits(longer) ? MostEntryDigits() : kMostEntryChars))
        return false;
    if (m_entry.empty())
        Finish(); // a field was being typed
    Begin();
    m_entry = std::move(longer);
    ShowEntry();
    TakeTyped();
    return true;
}

void QVTimecodeTyping::ShowEntry() {
    std::wstring shown = m_entry;
    if (IsAllDigits(shown)) {
        shown.insert(0, Zeros(MostEntryDigits() - Length(shown)));
        shown.insert(kLastField * kFieldDigits, QV_IsDropFrame(m_rate) ? L";" : L":");
        shown.insert(2 * kFieldDigits, L":");
        shown.insert(kFieldDigits, L":");
    }
    ShowText(shown);
    m_selection = {Length(m_text), Length(m_text)};
}

void QVTimecodeTyping::SetFieldText(int field, const std::wstring& digits) {
    m_selection = SpanOfField(field);
    ReplaceSelected(digits);
    SelectField(field);
}

// Digits overtype a field from the right; a full field hands on to the next.
void QVTimecodeTyping::TypeFieldDigit(int field, wchar_t digit) {
    Begin();
    const int width = FieldWidth(field);
    std::wstring digits = Zeros(width);
    if (m_fieldDigits > 0)
        digits = Part(m_text, SpanOfField(field).from, width);
    SetFieldText(field, digits.substr(1) + digit);
    ++m_fieldDigits;
    if (m_fieldDigits < width) {
        TakeTyped();
        return;
    }
    Finish();
    SelectField(std::min(field + 1, kLastField));
}

// Erasing.

void QVTimecodeTyping::EraseBackwards() {
    if (!IsLabel()) {
        const auto [from, to] = m_selection;
        EraseCount(from < to ? from : std::max(from - 1, 0), to);
        return;
    }
    if (m_entry.empty()) {
        EraseLabel();
        return;
    }
    m_entry.pop_back();
    if (m_entry.empty()) {
        SelectAll();
        GoBack();
        return;
    }
    ShowEntry();
    TakeTyped();
}

void QVTimecodeTyping::EraseForwards() {
    if (IsLabel()) {
        EraseLabel();
        return;
    }
    const auto [from, to] = m_selection;
    EraseCount(from, from < to ? to : std::min(to + 1, Length(m_text)));
}

// The selected field, or the whole label, becomes 0.
void QVTimecodeTyping::EraseLabel() {
    if (IsAllSelected() || !m_entry.empty()) {
        Drop();
        SelectAll();
        TakeFrame(0);
        return;
    }
    const int field = SelectedField();
    Begin();
    m_fieldDigits = 0;
    SetFieldText(field, Zeros(FieldWidth(field)));
    Finish();
    SelectField(field);
}

// Moving and stepping.

void QVTimecodeTyping::Move(QVFieldMove move) {
    const bool fromAll = IsAllSelected();
    const int field = SelectedField();
    Finish();
    const bool isBack = move == QVFieldMove::Previous;
    if (move == QVFieldMove::First || (isBack && fromAll))
        SelectField(0);
    else if (move == QVFieldMove::Last || fromAll)
        SelectField(kLastField);
    else
        SelectField(std::clamp(field + (isBack ? -1 : 1), 0, kLastField));
}

void QVTimecodeTyping::Step(int steps) {
    const bool isWhole = !IsLabel() || IsAllSelected() || !m_entry.empty();
    const int field = isWhole ? kLastField : SelectedField();
    Finish();
    TakeFrame(QV_StepTimecode(m_frame, m_rate, static_cast<QVTimecodeField>(field), steps));
}

} // namespace _qv_extractrl
