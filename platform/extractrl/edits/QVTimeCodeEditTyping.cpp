// The typing half of CQVTimeCodeEditEx: what each key does to the text and to the frame.
#include "QVTimeCodeEditEx.h"

#include "QVTimecode.h"

#include <algorithm>

namespace _qv_extractrl {

namespace {

constexpr int kFields = 4;
constexpr int kFieldDigits = 2;
constexpr int kFieldPitch = kFieldDigits + 1; // a field and its separator
constexpr int kLastField = kFields - 1;
constexpr int kLargestTwoDigitCount = 100;
constexpr int kMostEntryChars = 24;

// Control characters that keys make.
enum EditCommand : UINT {
    kSelectAll = 0x01,
    kCopy = 0x03,
    kBackspace = 0x08,
    kPaste = 0x16,
    kCut = 0x18,
    kUndo = 0x1A,
    kFirstPrintable = 0x20,
};

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool IsSeparator(wchar_t c) {
    return c == L':' || c == L';' || c == L'.' || c == L',' || c == L' ';
}

bool IsPrefix(wchar_t c) {
    return c == L'+' || c == L'-' || c == L'=';
}

bool IsRelative(const CString& text) {
    if (text.IsEmpty())
        return false;
    if (text[0] == L'+')
        return true;
    return text[0] == L'-' && (text.GetLength() < 2 || text[1] != L'-');
}

bool IsAllDigits(const CString& text) {
    for (int i = 0; i < text.GetLength(); ++i) {
        if (!IsDigit(text[i]))
            return false;
    }
    return true;
}

// "-00:00:01:00" as it was copied from a timecode edit: a sign, not a distance.
bool IsNegativeLabel(const CString& text) {
    int separators = 0;
    for (int i = 1; i < text.GetLength(); ++i)
        separators += IsSeparator(text[i]) ? 1 : 0;
    return !text.IsEmpty() && text[0] == L'-' && separators >= kLastField;
}

// How many characters stand before the first field of the label that the edit shows.
int SignChars(const CWnd& edit) {
    CString text;
    edit.GetWindowText(text);
    return !text.IsEmpty() && text[0] == L'-' ? 1 : 0;
}

} // namespace

int CQVTimeCodeEditEx::FrameDigits() const {
    return QV_GetTimecodeCount(m_rate).nLabelsPerSecond > kLargestTwoDigitCount ? kFieldDigits + 1
                                                                                : kFieldDigits;
}

bool CQVTimeCodeEditEx::IsAllSelected() const {
    int from = 0, to = 0;
    GetSel(from, to);
    const int length = GetWindowTextLength();
    return length > 0 && from == 0 && to >= length;
}

int CQVTimeCodeEditEx::SelectedField() const {
    int from = 0, to = 0;
    GetSel(from, to);
    return std::clamp((from - SignChars(*this)) / kFieldPitch, 0, kLastField);
}

void CQVTimeCodeEditEx::SelectField(int nField) {
    const int start = SignChars(*this) + nField * kFieldPitch;
    SetSel(start, start + (nField == kLastField ? FrameDigits() : kFieldDigits));
}

bool CQVTimeCodeEditEx::Parse(const CString& strText, __int64 nCurrent, __int64& nFrame) const {
    long long frame = 0;
    if (!QV_ParseTimecode(strText, m_rate, nCurrent, frame,
                          IsLabelMode() ? QVTimecodeText::Timecode : QVTimecodeText::FrameCount))
        return false;
    nFrame = frame;
    return true;
}

bool CQVTimeCodeEditEx::ReadTyped(__int64& nFrame, bool& bRelative) const {
    CString text = m_strEntry;
    if (text.IsEmpty()) {
        GetWindowText(text);
        // Over a field the text is a whole label, whose minus is a sign.
        if (IsLabelMode())
            text = L"=" + text;
    }
    bRelative = IsRelative(text);
    return Parse(text, m_nEntryBase, nFrame);
}

void CQVTimeCodeEditEx::BeginTyping() {
    if (m_bTyping)
        return;
    m_bTyping = true;
    m_nEntryBase = m_nFrame;
    m_nFieldDigits = 0;
}

void CQVTimeCodeEditEx::DropTyping() {
    m_bTyping = false;
    m_strEntry.Empty();
    m_nFieldDigits = 0;
}

// Shows what was typed as the frame it stands for. False when the parent closed the window over it.
bool CQVTimeCodeEditEx::FinishTyping() {
    if (!m_bTyping)
        return true;
    const HWND self = m_hWnd;
    const __int64 frame = GetFrame();
    const bool isNews = frame != m_nFrame;
    if (frame != m_nEntryBase)
        m_nUndoFrame = m_nEntryBase;
    DropTyping();
    m_nFrame = frame;
    ShowFrame();
    if (isNews)
        Send(QVEDIT_CHANGED);
    return ::IsWindow(self) != FALSE;
}

void CQVTimeCodeEditEx::GoBack() {
    const __int64 before = m_bTyping ? m_nEntryBase : m_nUndoFrame;
    DropTyping();
    TakeFrame(before);
}

// A finished change by the user. The window may be gone afterwards.
void CQVTimeCodeEditEx::TakeFrame(__int64 nFrame) {
    const bool isNews = nFrame != m_nFrame;
    const bool selectAll = !IsLabelMode() || IsAllSelected();
    const int field = SelectedField();
    if (isNews)
        m_nUndoFrame = m_nFrame;
    m_nFrame = nFrame;
    ShowFrame();
    if (selectAll)
        SetSel(0, -1);
    else
        SelectField(field);
    if (isNews)
        Send(QVEDIT_CHANGED);
}

bool CQVTimeCodeEditEx::TakeText(const CString& strText) {
    __int64 frame = 0;
    const bool isSigned = IsLabelMode() && IsNegativeLabel(strText);
    if (!Parse(isSigned ? L"=" + strText : strText, GetFrame(), frame))
        return false;
    DropTyping();
    TakeFrame(frame);
    return true;
}

// Takes the text as far as it is typed; the text itself stays as it is.
void CQVTimeCodeEditEx::TakeTyped() {
    BeginTyping();
    __int64 frame = 0;
    bool relative = false;
    if (!ReadTyped(frame, relative) || relative || frame == m_nFrame)
        return; // a distance counts when it is finished
    m_nFrame = frame;
    Send(QVEDIT_CHANGED);
}

void CQVTimeCodeEditEx::TypeFramesChar(wchar_t chTyped) {
    int from = 0, to = 0;
    GetSel(from, to);
    if (!IsDigit(chTyped) && !(IsPrefix(chTyped) && from <= 1))
        return;
    CString text;
    GetWindowText(text);
    if (text.GetLength() - (to - from) >= kMostEntryChars)
        return;
    BeginTyping();
    DefWindowProc(WM_CHAR, chTyped, 1);
    TakeTyped();
}

void CQVTimeCodeEditEx::TypeLabelChar(wchar_t chTyped) {
    if (!m_strEntry.IsEmpty() || IsPrefix(chTyped) || (IsAllSelected() && !m_bTyping)) {
        TypeEntryChar(chTyped);
    } else if (IsDigit(chTyped)) {
        TypeFieldDigit(SelectedField(), chTyped);
    } else if (IsSeparator(chTyped)) {
        const int next = std::min(SelectedField() + 1, kLastField);
        if (FinishTyping())
            SelectField(next);
    }
}

// Typing over the whole text: digits fill from the right.
void CQVTimeCodeEditEx::TypeEntryChar(wchar_t chTyped) {
    const bool isPrefixPlace =
        m_strEntry.IsEmpty() || (m_strEntry.GetLength() == 1 && IsPrefix(m_strEntry[0]) && chTyped == L'-');
    if (!IsDigit(chTyped) && !IsSeparator(chTyped) && !(IsPrefix(chTyped) && isPrefixPlace))
        return;
    const CString longer = m_strEntry + chTyped;
    const int mostDigits = kLastField * kFieldDigits + FrameDigits();
    if (longer.GetLength() > (IsAllDigits(longer) ? mostDigits : kMostEntryChars))
        return;
    if (m_bTyping && m_strEntry.IsEmpty() && !FinishTyping())
        return; // a field was being typed
    BeginTyping();
    m_strEntry = longer;
    ShowEntry();
    TakeTyped();
}

void CQVTimeCodeEditEx::ShowEntry() {
    CString shown = m_strEntry;
    if (IsAllDigits(m_strEntry)) {
        const int mostDigits = kLastField * kFieldDigits + FrameDigits();
        CString digits = CString(L'0', mostDigits - m_strEntry.GetLength()) + m_strEntry;
        const CString separator(QV_IsDropFrame(m_rate) ? L';' : L':');
        shown = digits.Left(kFieldDigits) + L":" + digits.Mid(kFieldDigits, kFieldDigits) + L":" +
                digits.Mid(2 * kFieldDigits, kFieldDigits) + separator +
                digits.Mid(kLastField * kFieldDigits);
    }
    ShowText(shown);
    SetSel(shown.GetLength(), shown.GetLength());
}

void CQVTimeCodeEditEx::SetFieldText(int nField, const CString& strDigits) {
    CString text;
    GetWindowText(text);
    SelectField(nField);
    int from = 0, to = 0;
    GetSel(from, to);
    ShowText(text.Left(from) + strDigits + text.Mid(to));
    SetSel(from, to);
}

// Digits overtype a field from the right; a full field hands on to the next.
void CQVTimeCodeEditEx::TypeFieldDigit(int nField, wchar_t chDigit) {
    BeginTyping();
    const int width = nField == kLastField ? FrameDigits() : kFieldDigits;
    CString digits(L'0', width);
    if (m_nFieldDigits > 0) {
        CString text;
        GetWindowText(text);
        SelectField(nField);
        int from = 0, to = 0;
        GetSel(from, to);
        digits = text.Mid(from, width);
    }
    SetFieldText(nField, digits.Mid(1) + chDigit);
    ++m_nFieldDigits;
    if (m_nFieldDigits < width) {
        TakeTyped();
        return;
    }
    if (FinishTyping())
        SelectField(std::min(nField + 1, kLastField));
}

void CQVTimeCodeEditEx::EraseBackwards() {
    if (m_strEntry.IsEmpty()) {
        EraseSelected();
        return;
    }
    m_strEntry = m_strEntry.Left(m_strEntry.GetLength() - 1);
    if (m_strEntry.IsEmpty()) {
        SetSel(0, -1);
        GoBack();
        return;
    }
    ShowEntry();
    TakeTyped();
}

// The selected field, or the whole label, becomes 0.
void CQVTimeCodeEditEx::EraseSelected() {
    if (IsReadOnly())
        return;
    if (IsAllSelected() || !m_strEntry.IsEmpty()) {
        DropTyping();
        SetSel(0, -1);
        TakeFrame(0);
        return;
    }
    const int field = SelectedField();
    BeginTyping();
    m_nFieldDigits = 0;
    SetFieldText(field, CString(L'0', field == kLastField ? FrameDigits() : kFieldDigits));
    if (FinishTyping())
        SelectField(field);
}

// Keys that are commands. True when nChar is one of them.
bool CQVTimeCodeEditEx::TypeCommand(UINT nChar) {
    switch (nChar) {
    case kSelectAll:
        if (FinishTyping())
            SetSel(0, -1);
        break;
    case kCopy:
        SendMessage(WM_COPY);
        break;
    case kPaste:
        SendMessage(WM_PASTE);
        break;
    case kCut:
        SendMessage(WM_CUT);
        break;
    case kUndo:
        SendMessage(WM_UNDO);
        break;
    case kBackspace:
        if (IsReadOnly())
            break;
        if (IsLabelMode()) {
            EraseBackwards();
            break;
        }
        Default();
        TakeTyped();
        break;
    default:
        return nChar < kFirstPrintable; // Enter, Escape and Tab have been dealt with as keys
    }
    return true;
}

// Left, Right, Home and End choose a field. False when the key shall do what it does in any edit.
bool CQVTimeCodeEditEx::MoveByKey(UINT nKey) {
    if (!IsLabelMode() || ::GetKeyState(VK_SHIFT) < 0 || ::GetKeyState(VK_CONTROL) < 0)
        return false;
    if (nKey != VK_LEFT && nKey != VK_RIGHT && nKey != VK_HOME && nKey != VK_END)
        return false;
    const bool fromAll = IsAllSelected();
    const int field = SelectedField();
    if (!FinishTyping())
        return true;
    if (nKey == VK_HOME || (nKey == VK_LEFT && fromAll))
        SelectField(0);
    else if (nKey == VK_END || (nKey == VK_RIGHT && fromAll))
        SelectField(kLastField);
    else
        SelectField(std::clamp(field + (nKey == VK_LEFT ? -1 : 1), 0, kLastField));
    return true;
}

void CQVTimeCodeEditEx::Step(int nSteps) {
    if (IsReadOnly())
        return;
    const bool wholeText = !IsLabelMode() || IsAllSelected() || !m_strEntry.IsEmpty();
    const int field = wholeText ? kLastField : SelectedField();
    if (!FinishTyping())
        return;
    TakeFrame(QV_StepTimecode(m_nFrame, m_rate, static_cast<QVTimecodeField>(field), nSteps));
}

} // namespace _qv_extractrl
