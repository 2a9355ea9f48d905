// What a person's keys do to a field that shows a frame: to its text, its selection and the frame it stands
// for. There is no window in it: the control brings the keys, shows the text and tells the parent. One thread
// at a time.
#pragma once

#include "QVTimecode.h"

#include <string>

namespace _qv_extractrl {

// Characters [from, to) of a text; the same figure twice is a caret.
struct QVTextSpan {
    int from = 0;
    int to = 0;

    bool operator==(const QVTextSpan&) const = default;
};

// Where a key goes from the selected field of a label.
enum class QVFieldMove { Previous, Next, First, Last };

class QVTimecodeTyping {
  public:
    // 25 frames a second, timecode, frame 0.
    QVTimecodeTyping();

    // How the frame is written and counted; what is being typed is given up.
    void SetMode(QVTimecodeText mode);
    void SetRate(const _qv_commonctrl::TimecodeFrameRate& rate);
    const _qv_commonctrl::TimecodeFrameRate& Rate() const { return m_rate; }
    bool IsLabel() const { return m_mode == QVTimecodeText::Timecode; }

    // The program's frame. Another one than the field's gives up what is being typed and what could be gone
    // back to.
    void SetFrame(long long frame);

    // What the field shows, and what of it is selected.
    const std::wstring& Text() const { return m_text; }
    QVTextSpan Selection() const { return m_selection; }
    // The user has selected something else.
    void Select(QVTextSpan selection) { m_selection = selection; }

    // The frame with what has been typed so far; that from before the typing while the text stands for none.
    long long Frame() const;
    // Whether the frame is another one than at the last call; the parent is told then.
    bool TakeNews();

    // Keys. A character is refused (false) when it means nothing where it is typed. Behind a decimal point
    // that a count refused digits are refused as well, until EndFraction is called.
    bool Type(wchar_t typed);
    void EndFraction() { m_inFraction = false; }
    void EraseBackwards();
    void EraseForwards();
    void SelectAll();
    void Move(QVFieldMove move); // labels only
    void Step(int steps);
    // Shows what was typed as the frame it stands for.
    void Finish();
    // Back to the frame before what is being typed or, when nothing is, before the last change.
    void GoBack();

    // The whole field of the selection's start becomes selected (labels only).
    void SelectFieldHere() { SelectField(SelectedField()); }

    // A whole text, pasted or set by the program. False, and nothing changes, when it cannot be read.
    bool TakeText(std::wstring text);

  private:
    int FrameDigits() const;
    int FieldWidth(int field) const;
    int MostEntryDigits() const;
    bool IsAllSelected() const;
    int SelectedField() const;
    void SelectField(int field);
    QVTextSpan SpanOfField(int field) const;
    std::wstring FrameText() const;
    void ShowText(std::wstring text);

    bool Parse(const std::wstring& text, long long current, long long& frame) const;
    bool ReadTyped(long long& frame, bool& isRelative) const;
    void Begin();
    void Drop();
    void TakeTyped();
    void TakeFrame(long long frame);

    void ReplaceSelected(const std::wstring& typed);
    void EraseCount(int from, int to);
    bool TypeCountChar(wchar_t typed);
    bool TypeLabelChar(wchar_t typed);
    bool TypeEntryChar(wchar_t typed);
    void TypeFieldDigit(int field, wchar_t digit);
    void SetFieldText(int field, const std::wstring& digits);
    void ShowEntry();
    void EraseLabel();

    _qv_commonctrl::TimecodeFrameRate m_rate;
    QVTimecodeText m_mode = QVTimecodeText::Timecode;
    std::wstring m_text;
    QVTextSpan m_selection;
    long long m_frame = 0;
    long long m_toldFrame = 0; // the frame that the parent knows
    long long m_undoFrame = 0; // the frame before the last change
    long long m_baseFrame = 0; // the frame when typing began
    std::wstring m_entry;      // typed so far over a whole label; empty: nothing
    int m_fieldDigits = 0;     // digits typed into the selected field of a label so far
    bool m_isDistance = false; // a count that begins with a sign which was typed first
    bool m_inFraction = false; // a count has just refused a decimal point
    bool m_isTyping = false;   // the text is the user's and not finished
};

} // namespace _qv_extractrl
