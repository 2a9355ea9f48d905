#include "QVEditEx.h"

#include "QVEditTools.h"

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

void CQVEditEx::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // Control characters are the edit's own keys: backspace, copy, paste, undo.
    const bool isAccepted = m_strIncludeKey.IsEmpty() || nChar < kFirstPrintable ||
                            m_strIncludeKey.Find(static_cast<wchar_t>(nChar)) >= 0;
    if (isAccepted)
        CQVEdit::OnChar(nChar, nRepCnt, nFlags);
}

LRESULT CQVEditEx::OnPaste(WPARAM, LPARAM) {
    if (m_strIncludeKey.IsEmpty())
        return Default();
    if (GetStyle() & ES_READONLY)
        return 0;
    CString accepted;
    for (const wchar_t c : QV_ReadClipboard(m_hWnd)) {
        if (m_strIncludeKey.Find(c) >= 0)
            accepted += c;
    }
    if (!accepted.IsEmpty())
        ReplaceSel(accepted, TRUE);
    return 0;
}

} // namespace _qv_extractrl
