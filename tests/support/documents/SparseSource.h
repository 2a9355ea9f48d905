#pragma once

#include "PsdImage.h"
#include "psd/ByteSource.h"
#include <map>

namespace psdtest {

// A document of any size of which only some stretches are not zero: gigabytes without a disk.
class SparseSource final : public _qv_commonclass::psd::ByteSource {
  public:
    explicit SparseSource(std::uint64_t size) : m_size(size) {}

    void put(std::uint64_t offset, Bytes bytes) { m_stretches[offset] = std::move(bytes); }

    std::uint64_t size() const noexcept override { return m_size; }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override;

    std::uint64_t bytesRead = 0;

  private:
    std::uint64_t m_size;
    std::map<std::uint64_t, Bytes> m_stretches;
};

} // namespace psdtest
