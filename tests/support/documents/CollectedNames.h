#pragma once

#include "psd/NameSink.h"
#include <algorithm>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace psdtest {

// The names that a reading has given so far. They stand in a few large pages: with the heap's checks on, as the tests
// run, each block makes every later one dearer, and what is measured is the reading.
class CollectedNames final : public _qv_commonclass::psd::NameSink {
  public:
    void expect(std::size_t atMost) override { m_names.reserve(atMost); }
    void append(std::u16string_view name) override {
        if (m_pages.empty() || m_pages.back().capacity() - m_pages.back().size() < name.size())
            m_pages.emplace_back().reserve(std::max(kPageUnits, name.size()));
        std::u16string& page = m_pages.back();
        const std::size_t begin = page.size();
        page.append(name);
        m_names.emplace_back(page.data() + begin, name.size());
        m_totalUnits += name.size();
    }

    std::size_t totalUnits() const { return m_totalUnits; }
    const std::vector<std::u16string_view>& views() const { return m_names; }
    std::vector<std::u16string> names() const { return {m_names.begin(), m_names.end()}; }

  private:
    static constexpr std::size_t kPageUnits = 1 << 16;

    std::vector<std::u16string_view> m_names;
    std::deque<std::u16string> m_pages; // none grows beyond what was reserved for it
    std::size_t m_totalUnits = 0;
};

} // namespace psdtest
