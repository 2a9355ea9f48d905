// ReadWindow: the next stretch read, and how wide it is.
#include "ReadWindow.h"
#include <algorithm>
#include <cstring>

namespace _qv_commonclass::psd {

ReadWindow::ReadWindow(ByteSource& source) : m_source(source), m_sourceSize(source.size()) {
}

std::size_t ReadWindow::nextSpan() noexcept {
    m_span = m_sawLongSkip ? kNarrowBytes : std::min(m_span * 2, kWideBytes);
    m_sawLongSkip = false;
    return m_span;
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
    std::memmove(m_buffer, m_buffer + from, kept);
    const std::size_t got = std::min(m_source.readAt(readFrom, m_buffer + kept, wanted), wanted);
    m_begin = offset;
    m_filled = kept + got;
    if (m_filled < count) {
        m_failed = true;
        return nullptr;
    }
    return m_buffer;
}

} // namespace _qv_commonclass::psd
