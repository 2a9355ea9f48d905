#include "ListAnswers.h"

#include <algorithm>
#include <cwchar>

namespace _qv_commonwnd {

namespace {

constexpr UINT kKept = LVIF_TEXT | LVIF_IMAGE;
constexpr size_t kMostAnswers = 4096; // many times what a screen shows

bool AsksForKept(UINT mask) {
    return (mask & kKept) && !(mask & ~kKept);
}

bool HasText(const LVITEMW& item) {
    return item.pszText && item.pszText != LPSTR_TEXTCALLBACKW;
}

} // namespace

bool CListAnswers::Fill(LVITEMW& item) const {
    if (!AsksForKept(item.mask))
        return false;
    const auto found = m_answers.find({item.iItem, item.iSubItem});
    if (found == m_answers.end())
        return false;
    const Answer& answer = found->second;
    if (answer.param != item.lParam || (item.mask & ~answer.known))
        return false;
    if (item.mask & LVIF_TEXT) {
        if (!HasText(item) || item.cchTextMax <= 0)
            return false;
        const size_t most = std::min(answer.text.size(), static_cast<size_t>(item.cchTextMax) - 1);
        std::copy_n(answer.text.data(), most, item.pszText);
        item.pszText[most] = L'\0';
    }
    if (item.mask & LVIF_IMAGE)
        item.iImage = answer.image;
    return true;
}

void CListAnswers::Keep(UINT asked, const LVITEMW& item) {
    // An answer that the list keeps itself is not asked for again.
    if (!AsksForKept(asked) || (item.mask & LVIF_DI_SETITEM))
        return;
    if (m_answers.size() >= kMostAnswers)
        Forget();
    Answer& answer = m_answers[{item.iItem, item.iSubItem}];
    if (answer.param != item.lParam)
        answer = Answer();
    answer.param = item.lParam;
    if ((asked & LVIF_TEXT) && HasText(item)) {
        answer.text = item.pszText;
        answer.known |= LVIF_TEXT;
    }
    if ((asked & LVIF_IMAGE) && item.iImage >= 0) {
        answer.image = item.iImage;
        answer.known |= LVIF_IMAGE;
    }
}

void CListAnswers::Forget() {
    m_answers.clear();
}

} // namespace _qv_commonwnd
