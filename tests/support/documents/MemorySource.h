#pragma once

#include "PsdImage.h"
#include "psd/ByteSource.h"
#include <algorithm>
#include <cstring>

namespace psdtest {

// A document in memory as a source that counts what is read of it.
class MemorySource final : public _qv_commonclass::psd::ByteSource {
  public:
    // bytes: borrowed for the source's life.
    explicit MemorySource(const Bytes& bytes) : m_bytes(bytes) {}
    explicit MemorySource(Bytes&&) = delete;

    std::uint64_t size() const noexcept override { return m_bytes.size(); }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override {
        ++reads;
        if (offset >= m_bytes.size())
            return 0;
        const std::size_t length = std::min(count, static_cast<std::size_t>(m_bytes.size() - offset));
        std::memcpy(to, m_bytes.data() + offset, length);
        bytesRead += length;
        return length;
    }

    std::uint64_t bytesRead = 0;
    std::uint64_t reads = 0;

  private:
    const Bytes& m_bytes;
};

} // namespace psdtest
