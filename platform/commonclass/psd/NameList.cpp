#include "NameList.h"
#include <algorithm>

namespace _qv_commonclass::psd {

void NameList::addBlock(std::size_t units) {
    const std::size_t next = std::clamp(m_blockUnits * 2, kFirstBlockUnits, kLastBlockUnits);
    const std::size_t length = std::max(next, units);
    m_blocks.push_back(std::make_unique_for_overwrite<char16_t[]>(length));
    m_blockUnits = length;
    m_usedUnits = 0;
}

void NameList::append(std::u16string_view name) {
    name = name.substr(0, kMaxNameUnits);
    if (name.size() > m_blockUnits - m_usedUnits)
        addBlock(name.size());
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
