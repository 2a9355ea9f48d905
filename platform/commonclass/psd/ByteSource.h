// ByteSource: where a document's bytes come from.
#pragma once

#include <cstddef>
#include <cstdint>

namespace _qv_commonclass::psd {

// Where a document's bytes come from. The reader never assumes that two answers agree: a file may shrink or
// change while it is read.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    // The number of bytes at the moment the source was opened.
    virtual std::uint64_t size() const noexcept = 0;

    // Copies up to count bytes that start at offset; answers how many were copied. Fewer than asked for means
    // the end was reached or the bytes cannot be read.
    virtual std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept = 0;
};

} // namespace _qv_commonclass::psd
