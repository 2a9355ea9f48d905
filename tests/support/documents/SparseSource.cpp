#include "SparseSource.h"
#include <algorithm>
#include <cstring>

namespace psdtest {

std::size_t SparseSource::readAt(std::uint64_t offset, void* to, std::size_t count) noexcept {
    if (offset >= m_size)
        return 0;
    const std::uint64_t end = std::min<std::uint64_t>(offset + count, m_size);
    std::memset(to, 0, static_cast<std::size_t>(end - offset));
    for (const auto& [begin, bytes] : m_stretches) {
        const std::uint64_t from = std::max(begin, offset);
        const std::uint64_t until = std::min<std::uint64_t>(begin + bytes.size(), end);
        if (from < until)
            std::memcpy(static_cast<std::uint8_t*>(to) + (from - offset), bytes.data() + (from - begin),
                        static_cast<std::size_t>(until - from));
    }
    bytesRead += end - offset;
    return static_cast<std::size_t>(end - offset);
}

} // namespace psdtest
