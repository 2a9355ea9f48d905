#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace _qv_commonclass::psd {

// Names, stored one behind the other in blocks: thousands of layers cost few allocations, and text once stored is
// never moved, so that even the longest list needs no second copy of itself while it grows.
class NameList {
  public:
    // The first block is small, each next one twice as long up to the limit.
    static constexpr std::size_t kFirstBlockUnits = 1024;
    static constexpr std::size_t kLastBlockUnits = 32 * 1024;
    // The longest name a list takes.
    static constexpr std::size_t kMaxNameUnits = 4096;

    std::size_t size() const noexcept { return m_names.size(); }
    // UTF-16 units of all names together.
    std::size_t totalUnits() const noexcept { return m_totalUnits; }

    // Valid as long as the list, or one it was moved to, lives.
    std::u16string_view operator[](std::size_t index) const noexcept { return m_names[index]; }

    // name: at most kMaxNameUnits; what is more is left out.
    void append(std::u16string_view name);

  private:
    void addBlock(std::size_t units);

    std::vector<std::unique_ptr<char16_t[]>> m_blocks;
    std::vector<std::u16string_view> m_names;
    std::size_t m_blockUnits = 0; // length of the last block
    std::size_t m_usedUnits = 0;  // and what of it is taken
    std::size_t m_totalUnits = 0;
};

} // namespace _qv_commonclass::psd
