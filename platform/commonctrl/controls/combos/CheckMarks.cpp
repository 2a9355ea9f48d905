#include "CheckMarks.h"

#include <algorithm>

namespace _qv_commonctrl {

void CheckMarks::Reset(int count) {
    m_checks.assign(static_cast<std::size_t>(std::max(0, count)), false);
}

bool CheckMarks::Set(int item, bool check) {
    if (!Has(item))
        return false;
    m_checks[static_cast<std::size_t>(item)] = check;
    return true;
}

void CheckMarks::SetAll(bool check) {
    std::fill(m_checks.begin(), m_checks.end(), check);
}

void CheckMarks::Follow(UINT message, WPARAM wParam, LRESULT result, int count) {
    const auto index = static_cast<std::size_t>(message == CB_DELETESTRING ? wParam : result);
    switch (message) {
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
        if (result >= 0 && index <= m_checks.size())
            m_checks.insert(m_checks.begin() + static_cast<std::ptrdiff_t>(index), false);
        break;
    case CB_DELETESTRING:
        if (result >= 0 && index < m_checks.size())
            m_checks.erase(m_checks.begin() + static_cast<std::ptrdiff_t>(index));
        break;
    case CB_RESETCONTENT:
        m_checks.clear();
        break;
    case CB_DIR:
        Reset(count);
        break;
    default:
        break;
    }
}

} // namespace _qv_commonctrl
