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

    std::uint64_t position() const noexcept { return m_pos; }
    std::uint64_t left() const noexcept { return m_end - m_pos; }

    bool skip(std::uint64_t count) noexcept {
        if (count > left())
            return false;
        m_pos += count;
        return true;
    }

    // The next count bytes without moving, valid until the window is used again; null when they are not
    // there.
    const std::uint8_t* peek(std::size_t count) noexcept {
        return count <= left() ? m_window->bytesAt(m_pos, count) : nullptr;
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
        inner = ByteCursor(*m_window, m_pos, m_pos + length);
        m_pos += length;
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
    ReadWindow* m_window = nullptr;
    std::uint64_t m_pos = 0;
    std::uint64_t m_end = 0;
};

} // namespace _qv_commonclass::psd
