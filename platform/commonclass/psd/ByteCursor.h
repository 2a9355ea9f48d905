// ByteCursor: a checked walk through one stretch of a document.
#pragma once

#include "ReadWindow.h"

namespace _qv_commonclass::psd {

// A position inside one length-delimited stretch of a document. Every step is checked against what is left of
// that stretch before anything is read; after a step that does not fit, the cursor stays where it was and
// answers false. Numbers are big-endian.
class ByteCursor {
  public:
    ByteCursor() = default;
    // The stretch [begin, end) of the window's source; end must not lie before begin.
    ByteCursor(ReadWindow& window, std::uint64_t begin, std::uint64_t end) noexcept
        : m_window(&window), m_pos(begin), m_end(end) {}

    std::uint64_t left() const noexcept { return m_end - m_pos; }

    bool skip(std::uint64_t count) noexcept {
        if (count > left())
            return false;
        m_pos += count;
        return true;
    }

    // Gets a short stretch into memory as a whole, so that its steps need not ask the window one by one. The
    // cursor and those entered from it then stand on the window's bytes: they are valid until the window is
    // used by another.
    void hold() noexcept {
        if (m_held != nullptr || left() > kMaxHeldBytes)
            return;
        m_held = m_window->bytesAt(m_pos, static_cast<std::size_t>(left()));
        if (m_held == nullptr)
            return;
        m_end -= m_pos;
        m_pos = 0;
    }

    bool isHeld() const noexcept { return m_held != nullptr; }

    // The next count bytes without moving, valid until the window is used again; null when they are not
    // there.
    const std::uint8_t* peek(std::size_t count) noexcept {
        if (count > left())
            return nullptr;
        return m_held != nullptr ? m_held + m_pos : m_window->bytesAt(m_pos, count);
    }

    // As peek, and moves past them.
    const std::uint8_t* take(std::size_t count) noexcept {
        const std::uint8_t* bytes = peek(count);
        if (bytes != nullptr)
            m_pos += count;
        return bytes;
    }

    bool readU8(std::uint8_t& value) noexcept {
        const std::uint8_t* bytes = take(1);
        if (bytes != nullptr)
            value = bytes[0];
        return bytes != nullptr;
    }
    bool readU16(std::uint16_t& value) noexcept {
        const std::uint8_t* bytes = take(2);
        if (bytes != nullptr)
            value = u16Of(bytes);
        return bytes != nullptr;
    }
    bool readU32(std::uint32_t& value) noexcept {
        const std::uint8_t* bytes = take(4);
        if (bytes != nullptr)
            value = u32Of(bytes);
        return bytes != nullptr;
    }
    bool readU64(std::uint64_t& value) noexcept {
        const std::uint8_t* bytes = take(8);
        if (bytes != nullptr)
            value = static_cast<std::uint64_t>(u32Of(bytes)) << 32 | u32Of(bytes + 4);
        return bytes != nullptr;
    }

    // Moves past the next length bytes and gives them as a stretch of their own.
    bool enter(std::uint64_t length, ByteCursor& inner) noexcept {
        if (length > left())
            return false;
        // Member by member: the position has just been written, and a copy of the whole would have to wait
        // for it.
        inner.m_window = m_window;
        inner.m_held = m_held;
        inner.m_pos = m_pos;
        m_pos += length;
        inner.m_end = m_pos;
        return true;
    }

    static std::uint16_t u16Of(const std::uint8_t* bytes) noexcept {
        return static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
    }
    static std::uint32_t u32Of(const std::uint8_t* bytes) noexcept {
        return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
               static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
    }

  private:
    // Up to this length reading all of a stretch costs less than skipping parts of it.
    static constexpr std::uint64_t kMaxHeldBytes = ReadWindow::kLongSkipBytes;

    ReadWindow* m_window = nullptr;
    // The bytes that positions count from; null: positions are the source's.
    const std::uint8_t* m_held = nullptr;
    std::uint64_t m_pos = 0;
    std::uint64_t m_end = 0;
};

} // namespace _qv_commonclass::psd
