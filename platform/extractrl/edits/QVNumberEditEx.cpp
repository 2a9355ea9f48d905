#include "QVNumberEditEx.h"

#include "support/QVControlClass.h"
#include "QVEditTools.h"
#include "QVNumberText.h"

#include <algorithm>
#include <cmath>

namespace _qv_extractrl {

using _qv_commonctrl::CQVEdit;

namespace {

constexpr UINT kFirstPrintable = L' ';
constexpr double kLargeStep = 10.0;

struct NumberClass {
    static CQVControlClass& ControlClass();
};

CQVControlClass g_class(L"NumberEditClass", L"EDIT", 0, ES_AUTOHSCROLL, &ControlProc<NumberClass>,
                        [] { return static_cast<CWnd*>(new CQVNumberEditEx); });

CQVControlClass& NumberClass::ControlClass() {
    return g_class;
}

// While it lives, changes of the text are the program's own and the parent hears nothing of them.
class SilentScope {
  public:
    explicit SilentScope(int& depth) : m_depth(depth) { ++m_depth; }
    SilentScope(const SilentScope&) = delete;
    SilentScope& operator=(const SilentScope&) = delete;
    ~SilentScope() { --m_depth; }

  private:
    int& m_depth;
};

CString TextOf(const CWnd& wnd) {
    CString text;
    if (wnd.m_hWnd)
        wnd.GetWindowText(text);
    return text;
}

} // namespace

IMPLEMENT_DYNAMIC(CQVNumberEditEx, CQVEdit)

BEGIN_MESSAGE_MAP(CQVNumberEditEx, CQVEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_PASTE, &CQVNumberEditEx::OnPaste)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CQVNumberEditEx::OnEnChange)
END_MESSAGE_MAP()

CQVNumberEditEx::CQVNumberEditEx() = default;
CQVNumberEditEx::~CQVNumberEditEx() = default;

BOOL CQVNumberEditEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(g_class.Name(), nullptr, dwStyle, rect, pParent, nID);
}

void CQVNumberEditEx::PostNcDestroy() {
    CQVEdit::PostNcDestroy();
    QV_DeleteTemplateObject(this);
}

QVNumberRule CQVNumberEditEx::Rule() const {
    return QV_MakeNumberRule(m_dMin, m_dMax, m_nDecimals);
}

void CQVNumberEditEx::SetRange(double dMin, double dMax) {
    const double pos = GetPos();
    const QVNumberRule rule = QV_MakeNumberRule(dMin, dMax, m_nDecimals);
    m_dMin = rule.lo;
    m_dMax = rule.hi;
    SetPos(pos);
}

void CQVNumberEditEx::GetRange(double& dMin, double& dMax) const {
    dMin = m_dMin;
    dMax = m_dMax;
}

void CQVNumberEditEx::SetDecimals(int nDecimals) {
    const double pos = GetPos();
    m_nDecimals = QV_MakeNumberRule(m_dMin, m_dMax, nDecimals).decimals;
    SetPos(pos);
}

void CQVNumberEditEx::SetStep(double dStep) {
    m_dStep = std::isfinite(dStep) ? std::max(dStep, 0.0) : 0.0;
}

void CQVNumberEditEx::SetPos(double dPos) {
    m_dPos = QV_BoundNumber(dPos, Rule());
    m_dTold = m_dPos;
    ShowPos(false);
}

bool CQVNumberEditEx::IsEdited() const {
    return m_hWnd && TextOf(*this) != m_strShown;
}

double CQVNumberEditEx::GetPos() const {
    double typed = 0.0;
    if (IsEdited() && QV_ParseNumber(TextOf(*this).GetString(), typed))
        return QV_BoundNumber(typed, Rule());
    return m_dPos;
}

void CQVNumberEditEx::ShowPos(bool bTellParent) {
    m_strShown = QV_FormatNumber(m_dPos, m_nDecimals).c_str();
    if (!m_hWnd || TextOf(*this) == m_strShown)
        return;
    if (!bTellParent) {
        const SilentScope silent(m_nSilent);
        SetWindowText(m_strShown);
        return;
    }
    // As if it were typed, so that it can be taken back.
    SetSel(0, -1);
    ReplaceSel(m_strShown, TRUE);
    if (TextOf(*this) != m_strShown) // longer than what may be typed
        SetWindowText(m_strShown);
}

void CQVNumberEditEx::SendChanged() {
    if (m_dPos == m_dTold)
        return;
    m_dTold = m_dPos;
    QV_SendEditNotify(this, QVEDIT_CHANGED);
}

void CQVNumberEditEx::ApplyRange() {
    m_dPos = GetPos();
    ShowPos(false);
    SendChanged();
}

void CQVNumberEditEx::Step(double dSteps) {
    if (GetStyle() & ES_READONLY)
        return;
    const QVNumberRule rule = Rule();
    const double step = m_dStep > 0.0 ? m_dStep : std::pow(10.0, -rule.decimals);
    m_dPos = QV_StepNumber(GetPos(), step * dSteps, 1, rule);
    ShowPos(true);
    SetSel(0, -1);
    SendChanged();
}

bool CQVNumberEditEx::MayReplaceSelection(const CString& strNew) const {
    int from = 0, to = 0;
    GetSel(from, to);
    const CString text = TextOf(*this);
    const CString would = text.Left(from) + strNew + text.Mid(to);
    return QV_MayBecomeNumber(would.GetString(), Rule());
}

LRESULT CQVNumberEditEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (QV_EndsFraction(message, wParam))
        m_bInFraction = false;
    LRESULT result = CQVEdit::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result != -1 && GetWindowTextLength() == 0)
        ShowPos(false);
    else if (message == WM_GETDLGCODE && QV_AsksForEnter(lParam))
        result |= DLGC_WANTMESSAGE;
    return result;
}

void CQVNumberEditEx::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == L'\r' || nChar == L'\n')
        return; // done with by the key itself; the edit would only beep
    if (nChar >= kFirstPrintable) {
        wchar_t typed = QV_NarrowChar(static_cast<wchar_t>(nChar));
        if (typed == L',')
            typed = L'.';
        if (!QV_TakesTyped(typed, MayReplaceSelection(CString(typed)), m_bInFraction)) {
            ShowRefused();
            return;
        }
        nChar = typed;
        DefWindowProc(WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
        return;
    }
    CQVEdit::OnChar(nChar, nRepCnt, nFlags);
}

void CQVNumberEditEx::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const double factor = ::GetKeyState(VK_SHIFT) < 0 ? kLargeStep : 1.0;
    switch (nChar) {
    case VK_UP:
        Step(factor);
        break;
    case VK_DOWN:
        Step(-factor);
        break;
    case VK_PRIOR:
        Step(kLargeStep);
        break;
    case VK_NEXT:
        Step(-kLargeStep);
        break;
    case VK_RETURN: {
        const HWND self = m_hWnd;
        ApplyRange();
        if (::IsWindow(self)) // the parent may have closed on the new value
            QV_SendEnter(this);
        break;
    }
    default:
        CQVEdit::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

BOOL CQVNumberEditEx::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    const int notches = QV_TakeNotches(m_nWheelRest, zDelta);
    if (notches != 0)
        Step(notches * ((nFlags & MK_SHIFT) ? kLargeStep : 1.0));
    return TRUE;
}

void CQVNumberEditEx::OnKillFocus(CWnd* pNewWnd) {
    CQVEdit::OnKillFocus(pNewWnd);
    ApplyRange();
}

LRESULT CQVNumberEditEx::OnPaste(WPARAM, LPARAM) {
    if (GetStyle() & ES_READONLY)
        return 0;
    CString pasted;
    for (const wchar_t c : QV_ReadClipboard(m_hWnd))
        pasted += QV_NarrowChar(c);
    if (pasted.IsEmpty())
        return 0;
    if (MayReplaceSelection(pasted))
        ReplaceSel(pasted, TRUE);
    else
        ShowRefused();
    return 0;
}

BOOL CQVNumberEditEx::OnEnChange() {
    return m_nSilent > 0; // TRUE: the parent does not see it
}

} // namespace _qv_extractrl
