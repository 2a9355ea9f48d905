#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace _qv_commonclass::psd {

// Names one behind the other in a single text: thousands of layers cost two allocations that grow, not one
// each.
class NameList {
  public:
    std::size_t size() const noexcept { return m_ends.size(); }
    // UTF-16 units of all names together.
    std::size_t totalUnits() const noexcept { return m_text.size(); }

    std::u16string_view operator[](std::size_t index) const noexcept {
        const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
        return std::u16string_view(m_text.data() + begin, m_ends[index] - begin);
    }

    void append(std::u16string_view name) {
        growFor(name.size());
        m_text.insert(m_text.end(), name.begin(), name.end());
        m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
    }

  private:
    // By half, not by doubling: the text of a made-up document can be long.
    void growFor(std::size_t units) {
        const std::size_t needed = m_text.size() + units;
        if (needed > m_text.capacity())
            m_text.reserve(needed + needed / 2);
    }

    std::vector<char16_t> m_text;
    std::vector<std::uint32_t> m_ends;
};

} // namespace _qv_commonclass::psd
