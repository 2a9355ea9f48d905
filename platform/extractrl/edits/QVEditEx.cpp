#include "QVEditEx.h"

#include "QVEditTools.h"

#include <algorithm>

namespace _qv_extractrl {

namespace {

constexpr UINT kFirstPrintable = L' ';

} // namespace

IMPLEMENT_DYNAMIC(CQVEditEx, _qv_commonctrl::CQVEdit)

BEGIN_MESSAGE_MAP(CQVEditEx, _qv_commonctrl::CQVEdit)
    ON_WM_CHAR()
    ON_MESSAGE(WM_PASTE, &CQVEditEx::OnPaste)
END_MESSAGE_MAP()

CQVEditEx::CQVEditEx() = default;
CQVEditEx::~CQVEditEx() = default;

void CQVEditEx::SetIncludeKey(const CString& strKeys) {
    m_strIncludeKey = strKeys;
}

LRESULT CQVEditEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (QV_EndsFraction(message, wParam))
        m_bInFraction = false;
    return CQVEdit::WindowProc(message, wParam, lParam);
}

bool CQVEditEx::Accepts(wchar_t c) const {
    if (!m_strIncludeKey.IsEmpty())
        return m_strIncludeKey.Find(c) >= 0;
    return !(GetStyle() & ES_NUMBER) || (c >= L'0' && c <= L'9');
}

void CQVEditEx::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // Control characters are the edit's own keys: backspace, copy, paste, undo.
    const auto typed = static_cast<wchar_t>(nChar);
    if (nChar < kFirstPrintable || QV_TakesTyped(typed, Accepts(typed), m_bInFraction))
        CQVEdit::OnChar(nChar, nRepCnt, nFlags);
    else
        ShowRefused();
}

LRESULT CQVEditEx::OnPaste(WPARAM, LPARAM) {
    if (m_strIncludeKey.IsEmpty())
        return Default();
    if (GetStyle() & ES_READONLY)
        return 0;
    const std::wstring pasted = QV_ReadClipboard(m_hWnd);
    if (pasted.empty())
        return 0;
    if (std::all_of(pasted.begin(), pasted.end(), [this](wchar_t c) { return Accepts(c); }))
        ReplaceSel(pasted.c_str(), TRUE);
    else
        ShowRefused();
    return 0;
}

} // namespace _qv_extractrl
