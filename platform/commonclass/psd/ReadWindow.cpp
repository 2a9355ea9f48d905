#include "ReadWindow.h"
#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace _qv_commonclass::psd {

ReadWindow::ReadWindow(ByteSource& source) : m_source(source), m_sourceSize(source.size()) {
}

std::size_t ReadWindow::nextSpan() noexcept {
    m_span = m_sawLongSkip ? kNarrowBytes : std::min(m_span * 2, kWideBytes);
    m_sawLongSkip = false;
    return m_span;
}

// Makes room for capacity bytes, with kept bytes of the old window in front. The room grows with the window: most
// documents need little, and large allocations cost more than the reading.
bool ReadWindow::keep(std::size_t from, std::size_t kept, std::size_t capacity) noexcept {
    if (capacity <= m_capacity) {
        if (kept > 0)
            std::memmove(m_buffer.get(), m_buffer.get() + from, kept);
        return true;
    }
    std::unique_ptr<std::uint8_t[]> larger(new (std::nothrow) std::uint8_t[capacity]);
    if (larger == nullptr)
        return false;
    if (kept > 0)
        std::memcpy(larger.get(), m_buffer.get() + from, kept);
    m_buffer = std::move(larger);
    m_capacity = capacity;
    return true;
}

const std::uint8_t* ReadWindow::refill(std::uint64_t offset, std::size_t count) noexcept {
    if (count > kMaxRequestBytes || offset > m_sourceSize || count > m_sourceSize - offset ||
        offset < m_begin)
        return nullptr;

    // What the old window holds of the request moves to the front; only the rest is read.
    const std::size_t from =
        offset - m_begin < m_filled ? static_cast<std::size_t>(offset - m_begin) : m_filled;
    const std::size_t kept = m_filled - from;
    const std::uint64_t readFrom = offset + kept;
    const std::size_t wanted = static_cast<std::size_t>(
        std::min<std::uint64_t>(std::max(nextSpan(), count - kept), m_sourceSize - readFrom));
    if (!keep(from, kept, kept + wanted)) {
        m_failed = true;
        return nullptr;
    }
    const std::size_t got = std::min(m_source.readAt(readFrom, m_buffer.get() + kept, wanted), wanted);
    m_begin = offset;
    m_filled = kept + got;
    if (m_filled < count) {
        m_failed = true;
        return nullptr;
    }
    return m_buffer.get();
}

} // namespace _qv_commonclass::psd
