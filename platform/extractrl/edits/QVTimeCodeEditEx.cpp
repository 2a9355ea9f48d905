#include "QVTimeCodeEditEx.h"

#include "QVTimecode.h"
#include "support/QVControlClass.h"
#include "QVEditTools.h"

namespace _qv_extractrl {

using _qv_commonctrl::CQVEdit;
using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr int kLargeStep = 10;

struct TimeCodeClass {
    static CQVControlClass& ControlClass();
};

CQVControlClass g_class(L"QVTimeCodeEditExClass", L"EDIT", 0, ES_AUTOHSCROLL, &ControlProc<TimeCodeClass>,
                        [] { return static_cast<CWnd*>(new CQVTimeCodeEditEx); });

CQVControlClass& TimeCodeClass::ControlClass() {
    return g_class;
}

int StepFactor() {
    return ::GetKeyState(VK_SHIFT) < 0 ? kLargeStep : 1;
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

CQVTimeCodeEditEx::CQVTimeCodeEditEx() = default;
CQVTimeCodeEditEx::~CQVTimeCodeEditEx() = default;

BOOL CQVTimeCodeEditEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(g_class.Name(), nullptr, dwStyle, rect, pParent, nID);
}

void CQVTimeCodeEditEx::PostNcDestroy() {
    CQVEdit::PostNcDestroy();
    QV_DeleteTemplateObject(this);
}

void CQVTimeCodeEditEx::SetEditMode(int nMode) {
    DropTyping();
    m_nMode = nMode == QVTIMECODE_FRAMES ? QVTIMECODE_FRAMES : QVTIMECODE_LABEL;
    ShowFrame();
}

void CQVTimeCodeEditEx::SetFrameRate(TimecodeFrameRate rate) {
    DropTyping();
    m_rate = rate;
    ShowFrame();
}

void CQVTimeCodeEditEx::SetFrame(__int64 nFrame, BOOL bNotify) {
    if (m_bTyping && nFrame == m_nFrame)
        return; // what the user types stands for it already
    DropTyping();
    const bool changed = nFrame != m_nFrame;
    m_nFrame = nFrame;
    m_nUndoFrame = nFrame;
    ShowFrame();
    if (changed && bNotify)
        Send(QVEDIT_CHANGED);
}

__int64 CQVTimeCodeEditEx::GetFrame() const {
    __int64 typed = 0;
    bool relative = false;
    return m_bTyping && ReadTyped(typed, relative) ? typed : m_nFrame;
}

CString CQVTimeCodeEditEx::FormatFrame(__int64 nFrame) const {
    CString text;
    if (IsLabelMode()) {
        wchar_t label[QV_TIMECODE_CHARS];
        QV_FormatTimecode(nFrame, m_rate, label, QV_TIMECODE_CHARS);
        text = label;
    } else {
        text.Format(L"%I64d", nFrame);
    }
    return text;
}

void CQVTimeCodeEditEx::ShowText(const CString& strText) {
    if (!m_hWnd)
        return;
    CString shown;
    GetWindowText(shown);
    if (shown == strText)
        return;
    const bool before = m_bShowing;
    m_bShowing = true;
    SetWindowText(strText);
    m_bShowing = before;
}

void CQVTimeCodeEditEx::ShowFrame() {
    ShowText(FormatFrame(m_nFrame));
}

void CQVTimeCodeEditEx::Send(int nCode) {
    if (m_hWnd)
        QV_SendEditNotify(this, nCode);
}

LRESULT CQVTimeCodeEditEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = CQVEdit::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result != -1)
        ShowFrame();
    else if (message == WM_GETDLGCODE && QV_AsksForEnter(lParam))
        result |= DLGC_WANTMESSAGE;
    return result;
}

void CQVTimeCodeEditEx::OnChar(UINT nChar, UINT, UINT) {
    if (TypeCommand(nChar) || IsReadOnly())
        return;
    const wchar_t typed = QV_NarrowChar(static_cast<wchar_t>(nChar));
    if (IsLabelMode())
        TypeLabelChar(typed);
    else
        TypeFramesChar(typed);
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
        if (FinishTyping())
            QV_SendEnter(this);
        return;
    case VK_ESCAPE: // only without a dialog around it, which would have taken the key
        GoBack();
        return;
    case VK_DELETE:
        if (IsLabelMode()) {
            EraseSelected();
            return;
        }
        CQVEdit::OnKeyDown(nChar, nRepCnt, nFlags);
        TakeTyped();
        return;
    default:
        if (!MoveByKey(nChar))
            CQVEdit::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

BOOL CQVTimeCodeEditEx::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    const int notches = QV_TakeNotches(m_nWheelRest, zDelta);
    if (notches != 0)
        Step(notches * ((nFlags & MK_SHIFT) ? kLargeStep : 1));
    return TRUE;
}

void CQVTimeCodeEditEx::OnLButtonDown(UINT nFlags, CPoint point) {
    if (FinishTyping())
        CQVEdit::OnLButtonDown(nFlags, point);
}

void CQVTimeCodeEditEx::OnLButtonUp(UINT nFlags, CPoint point) {
    CQVEdit::OnLButtonUp(nFlags, point);
    int from = 0, to = 0;
    GetSel(from, to);
    if (IsLabelMode() && from == to) // a click chooses a field, a drag a text to copy
        SelectField(SelectedField());
}

void CQVTimeCodeEditEx::OnKillFocus(CWnd* pNewWnd) {
    CQVEdit::OnKillFocus(pNewWnd);
    FinishTyping();
}

LRESULT CQVTimeCodeEditEx::OnPaste(WPARAM, LPARAM) {
    if (IsReadOnly())
        return 0;
    CString pasted;
    for (const wchar_t c : QV_ReadClipboard(m_hWnd))
        pasted += QV_NarrowChar(c);
    TakeText(pasted);
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnCut(WPARAM, LPARAM) {
    // A position cannot be taken out: the text is copied and stays.
    SendMessage(WM_COPY);
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnClear(WPARAM, LPARAM) {
    if (IsReadOnly())
        return 0;
    if (IsLabelMode()) {
        EraseSelected();
        return 0;
    }
    Default();
    TakeTyped();
    return 0;
}

LRESULT CQVTimeCodeEditEx::OnUndo(WPARAM, LPARAM) {
    if (!IsReadOnly())
        GoBack();
    return TRUE;
}

LRESULT CQVTimeCodeEditEx::OnSetText(WPARAM, LPARAM lParam) {
    if (m_bShowing)
        return Default();
    return TakeText(reinterpret_cast<const wchar_t*>(lParam)); // null is an empty text, which is refused
}

} // namespace _qv_extractrl
