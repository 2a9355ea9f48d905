// ReadWindow: a window of bytes that moves forward over a source.
#pragma once

#include "ByteSource.h"

namespace _qv_commonclass::psd {

// A window of bytes that moves forward over a source and never reads a byte twice. Its width follows what the
// document looks like: wide where the interesting bytes lie close together, narrow where long stretches
// between them are skipped, because there most of a wide window would be read for nothing.
//
// An object holds its bytes itself and is meant for the stack: a heap gives large blocks back to the system
// after each document, and getting them again costs more than the reading.
class ReadWindow {
  public:
    static constexpr std::size_t kNarrowBytes = 4 * 1024;
    // As much as stays in the processor's nearest cache; more saves few reads.
    static constexpr std::size_t kWideBytes = 32 * 1024;
    // Reading that much costs what two to three separate reads cost, so a skip pays for a read of its own
    // from about this length on.
    static constexpr std::uint64_t kLongSkipBytes = 12 * 1024;
    static constexpr std::size_t kMaxRequestBytes = 16 * 1024;

    explicit ReadWindow(ByteSource& source);
    ReadWindow(const ReadWindow&) = delete;
    ReadWindow& operator=(const ReadWindow&) = delete;

    std::uint64_t sourceSize() const noexcept { return m_sourceSize; }
    // Whether the source gave less than its size promised.
    bool failed() const noexcept { return m_failed; }

    // The count bytes at offset, valid until the next call. Offsets must not go back by more than what the
    // last answer covered; count is at most kMaxRequestBytes. Null when the source has no such bytes.
    const std::uint8_t* bytesAt(std::uint64_t offset, std::size_t count) noexcept {
        noteSkip(offset, count);
        if (offset >= m_begin && offset - m_begin <= m_filled && count <= m_filled - (offset - m_begin))
            return m_buffer + (offset - m_begin);
        return refill(offset, count);
    }

  private:
    void noteSkip(std::uint64_t offset, std::size_t count) noexcept {
        if (offset > m_lastEnd && offset - m_lastEnd >= kLongSkipBytes)
            m_sawLongSkip = true;
        m_lastEnd = offset + count;
    }
    const std::uint8_t* refill(std::uint64_t offset, std::size_t count) noexcept;
    std::size_t nextSpan() noexcept;

    ByteSource& m_source;
    std::uint64_t m_sourceSize;
    std::uint64_t m_begin = 0;
    std::uint64_t m_lastEnd = 0;
    std::size_t m_filled = 0;
    std::size_t m_span = kNarrowBytes / 2;
    bool m_sawLongSkip = false;
    bool m_failed = false;
    // What is kept of the old window is shorter than a request. Not initialised: most documents need little
    // of it.
    std::uint8_t m_buffer[kWideBytes + kMaxRequestBytes];
};

} // namespace _qv_commonclass::psd
