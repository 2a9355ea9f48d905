#include "QVTimeCodeEditEx.h"

#include "QVEditTools.h"
#include "QVTimecodeTyping.h"
#include "support/QVControlClass.h"

namespace _qv_extractrl {

using _qv_commonctrl::CQVEdit;
using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr int kLargeStep = 10;

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

struct TimeCodeClass {
    static CQVControlClass& ControlClass();
};

CQVControlClass g_class(L"QVTimeCodeEditExClass", L"EDIT", 0, ES_AUTOHSCROLL, &ControlProc<TimeCodeClass>,
                        [] { return static_cast<CWnd*>(new CQVTimeCodeEditEx); });

CQVControlClass& TimeCodeClass::ControlClass() {
    return g_class;
}

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

int StepFactor() {
    return IsDown(VK_SHIFT) ? kLargeStep : 1;
}

QVTextSpan SelectionOf(const CEdit& edit) {
    QVTextSpan selection;
    edit.GetSel(selection.from, selection.to);
    return selection;
}

// Left, Right, Home and End choose a field of a label. False for any other key.
bool MoveOfKey(UINT key, QVFieldMove& move) {
    switch (key) {
    case VK_LEFT:
        move = QVFieldMove::Previous;
        return true;
    case VK_RIGHT:
        move = QVFieldMove::Next;
        return true;
    case VK_HOME:
        move = QVFieldMove::First;
        return true;
    case VK_END:
        move = QVFieldMove::Last;
        return true;
    default:
        return false;
    }
}

} // namespace

IMPLEMENT_DYNAMIC(CQVTimeCodeEditEx, CQVEdit)

BEGIN_MESSAGE_MAP(CQVTimeCodeEditEx, CQVEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_PASTE, &CQVTimeCodeEditEx::OnPaste)
    ON_MESSAGE(WM_CUT, &CQVTimeCodeEditEx::OnCut)
    ON_MESSAGE(WM_CLEAR, &CQVTimeCodeEditEx::OnClear)
    ON_MESSAGE(WM_UNDO, &CQVTimeCodeEditEx::OnUndo)
    ON_MESSAGE(EM_UNDO, &CQVTimeCodeEditEx::OnUndo)
    ON_MESSAGE(WM_SETTEXT, &CQVTimeCodeEditEx::OnSetText)
END_MESSAGE_MAP()

CQVTimeCodeEditEx::CQVTimeCodeEditEx() : m_pTyping(new QVTimecodeTyping) {
}

CQVTimeCodeEditEx::~CQVTimeCodeEditEx() {
    delete m_pTyping;
}

BOOL CQVTimeCodeEditEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(g_class.Name(), nullptr, dwStyle, rect, pParent, nID);
}

void CQVTimeCodeEditEx::SetEditMode(int nMode) {
    Typing().SetMode(nMode == QVTIMECODE_FRAMES ? QVTimecodeText::FrameCount : QVTimecodeText::Timecode);
    ShowTyping();
}

int CQVTimeCodeEditEx::GetEditMode() const {
    return m_pTyping->IsLabel() ? QVTIMECODE_LABEL : QVTIMECODE_FRAMES;
}

void CQVTimeCodeEditEx::SetFrameRate(TimecodeFrameRate rate) {
    Typing().SetRate(rate);
    ShowTyping();
}

TimecodeFrameRate CQVTimeCodeEditEx::GetFrameRate() const {
    return m_pTyping->Rate();
}

void CQVTimeCodeEditEx::SetFrame(__int64 nFrame, BOOL bNotify) {
    Typing().SetFrame(nFrame);
    if (!bNotify)
        m_pTyping->TakeNews();
    ShowTyping();
}

__int64 CQVTimeCodeEditEx::GetFrame() const {
    return m_pTyping->Frame();
}

LRESULT CQVTimeCodeEditEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_bShowing && QV_EndsFraction(message, wParam))
        m_pTyping->EndFraction();
    LRESULT result = CQVEdit::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result != -1)
        ShowTyping();
    else if (message == WM_GETDLGCODE && QV_AsksForEnter(lParam))
        result |= DLGC_WANTMESSAGE;
    return result;
}

// What a key is to change, with the selection as it stands in the window.
QVTimecodeTyping& CQVTimeCodeEditEx::Typing() {
    if (m_hWnd)
        m_pTyping->Select(SelectionOf(*this));
    return *m_pTyping;
}

// Shows what has come of a key and tells the parent. False when the parent closed the window over it.
bool CQVTimeCodeEditEx::ShowTyping() {
    const HWND self = m_hWnd;
    if (!self) {
        m_pTyping->TakeNews(); // there is nobody to tell
        return true;
    }
    CString shown;
    GetWindowText(shown);
    if (shown != m_pTyping->Text().c_str()) {
        const bool before = m_bShowing;
        m_bShowing = true;
        SetWindowText(m_pTyping->Text().c_str());
        m_bShowing = before;
    }
    const QVTextSpan selection = m_pTyping->Selection();
    if (selection != SelectionOf(*this))
        SetSel(selection.from, selection.to);
    if (m_pTyping->TakeNews())
        QV_SendEditNotify(this, QVEDIT_CHANGED);
    return ::IsWindow(self) != FALSE;
}

bool CQVTimeCodeEditEx::IsReadOnly() const {
    return (GetStyle() & ES_READONLY) != 0;
}

void CQVTimeCodeEditEx::OnChar(UINT nChar, UINT, UINT) {
    switch (nChar) {
    case kSelectAll: {
        QVTimecodeTyping& typing = Typing();
        typing.Finish();
        typing.SelectAll();
        ShowTyping();
        return;
    }
    case kCopy:
        SendMessage(WM_COPY);
        return;
    case kPaste:
        SendMessage(WM_PASTE);
        return;
    case kCut:
        SendMessage(WM_CUT);
        return;
    case kUndo:
        SendMessage(WM_UNDO);
        return;
    default:
        break;
    }
    const bool isText = nChar >= kFirstPrintable; // Enter, Escape and Tab have been dealt with as keys
    if (IsReadOnly() || (!isText && nChar != kBackspace))
        return;
    bool isTaken = true;
    if (isText)
        isTaken = Typing().Type(QV_NarrowChar(static_cast<wchar_t>(nChar)));
    else
        Typing().EraseBackwards();
    if (ShowTyping() && !isTaken)
        ShowRefused();
}

void CQVTimeCodeEditEx::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    switch (nChar) {
    case VK_UP:
        Step(StepFactor());
        return;
    case VK_DOWN:
        Step(-StepFactor());
        return;
    case VK_PRIOR:
        Step(kLargeStep);
        return;
    case VK_NEXT:
        Step(-kLargeStep);
        return;
    case VK_RETURN:
        Typing().Finish();
        if (ShowTyping())
            QV_SendEnter(this);
        return;
    case VK_ESCAPE: // only without a dialog around it, which would have taken the key
        Typing().GoBack();
        ShowTyping();
        return;
    case VK_DELETE:
        if (IsDown(VK_SHIFT) && !m_pTyping->IsLabel()) {
            SendMessage(WM_CUT);
        } else if (!IsReadOnly()) {
            Typing().EraseForwards();
            ShowTyping();
        }
        return;
    default:
        break;
    }
    QVFieldMove move = QVFieldMove::First;
    const bool isPlainKey = m_pTyping->IsLabel() && !IsDown(VK_SHIFT) && !IsDown(VK_CONTROL);
    if (isPlainKey && MoveOfKey(nChar, move)) {
        Typing().Move(move);
        ShowTyping();
    } else {
        CQVEdit::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void CQVTimeCodeEditEx::Step(int nSteps) {
    if (IsReadOnly())
        return;
    Typing().Step(nSteps);
    ShowTyping();
}

BOOL CQVTimeCodeEditEx::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    const int notches = QV_TakeNotches(m_nWheelRest, zDelta);
    if (notches != 0)
        Step(notches * ((nFlags & MK_SHIFT) ? kLargeStep : 1));
    return TRUE;
}

void CQVTimeCodeEditEx::OnLButtonDown(UINT nFlags, CPoint point) {
    Typing().Finish();
    if (ShowTyping())
        CQVEdit::OnLButtonDown(nFlags, point);
}

void CQVTimeCodeEditEx::OnLButtonUp(UINT nFlags, CPoint point) {
    CQVEdit::OnLButtonUp(nFlags, point);
    const QVTextSpan selection = SelectionOf(*this);
    if (!m_pTyping->IsLabel() || selection.from != selection.to)
        return; // a drag chooses a text to copy, a click a field
    Typing().SelectFieldHere();
    ShowTyping();
}

void CQVTimeCodeEditEx::OnKillFocus(CWnd* pNewWnd) {
    CQVEdit::OnKillFocus(pNewWnd);
    Typing().Finish();
    ShowTyping();
}

LRESULT CQVTimeCodeEditEx::OnPaste(WPARAM, LPARAM) {
    if (IsReadOnly())
        return 0;
    std::wstring pasted = QV_ReadClipboard(m_hWnd);
    for (wchar_t& c : pasted)
        c = QV_NarrowChar(c);
    const bool isTaken = Typing().TakeText(pasted);
    if (ShowTyping() && !isTaken)
        ShowRefused();
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnCut(WPARAM, LPARAM) {
    // A position cannot be taken out: the text is copied and stays.
    SendMessage(WM_COPY);
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnClear(WPARAM, LPARAM) {
    const QVTextSpan selection = SelectionOf(*this);
    if (IsReadOnly() || (!m_pTyping->IsLabel() && selection.from == selection.to))
        return 0;
    Typing().EraseForwards();
    ShowTyping();
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnUndo(WPARAM, LPARAM) {
    if (IsReadOnly())
        return TRUE;
    Typing().GoBack();
    ShowTyping();
    return TRUE;
}

// From outside: a text that cannot be read is refused, null is an empty one.
LRESULT CQVTimeCodeEditEx::OnSetText(WPARAM, LPARAM lParam) {
    if (m_bShowing)
        return Default();
    const auto* const text = reinterpret_cast<const wchar_t*>(lParam);
    const bool isTaken = Typing().TakeText(text ? text : L"");
    ShowTyping();
    return isTaken;
}

void CQVTimeCodeEditEx::PostNcDestroy() {
    CQVEdit::PostNcDestroy();
    QV_DeleteTemplateObject(this);
}

} // namespace _qv_extractrl
