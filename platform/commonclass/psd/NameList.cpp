#include "NameList.h"
#include <algorithm>

namespace _qv_commonclass::psd {

void NameList::append(std::u16string_view name) {
    name = name.substr(0, kMaxNameUnits);
    if (name.size() > kBlockUnits - m_usedUnits) {
        m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(kBlockUnits));
        m_usedUnits = 0;
    }
    if (name.empty()) {
        m_names.emplace_back(u"");
        return;
    }
    char16_t* const stored = m_blocks.back().get() + m_usedUnits;
    std::copy(name.begin(), name.end(), stored);
    m_names.emplace_back(stored, name.size());
    m_usedUnits += name.size();
    m_totalUnits += name.size();
}

} // namespace _qv_commonclass::psd
