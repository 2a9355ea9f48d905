#include "LayerTexts.h"

#include <algorithm>

namespace _qv_commonclass {

void LayerTexts::expect(std::size_t atMost) {
    m_texts.reserve(atMost);
}

void LayerTexts::append(std::u16string_view name) {
    if (!m_waiting.empty() || m_straightUnits + name.size() > kStraightUnits)
        return wait(name);
    m_straightUnits += name.size();
    m_texts.emplace_back(reinterpret_cast<LPCWSTR>(name.data()), static_cast<int>(name.size()));
}

void LayerTexts::wait(std::u16string_view name) {
    if (m_pages.empty() || m_pages.back().capacity() - m_pages.back().size() < name.size())
        m_pages.emplace_back().reserve(std::max(kPageUnits, name.size()));
    std::wstring& page = m_pages.back();
    const std::size_t begin = page.size();
    page.append(reinterpret_cast<LPCWSTR>(name.data()), name.size());
    m_waiting.push_back({page.data() + begin, static_cast<int>(name.size())});
}

void LayerTexts::moveTo(CStringArray& names) {
    for (const Waiting& name : m_waiting)
        m_texts.emplace_back(name.text, name.length);
    m_waiting.clear();
    names.SetSize(static_cast<INT_PTR>(m_texts.size()));
    std::move(m_texts.begin(), m_texts.end(), names.begin());
}

} // namespace _qv_commonclass
