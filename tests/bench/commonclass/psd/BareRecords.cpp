#include "BareRecords.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <windows.h>

namespace {

constexpr std::size_t kPieceBytes = 32 * 1024;
constexpr std::size_t kLongestFieldBytes = 1024;
constexpr std::uint8_t kZeros[kLongestFieldBytes] = {};
constexpr std::uint32_t kUnicodeName = 0x6C756E69;

std::uint32_t numberAt(const std::uint8_t* bytes, int count) {
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i)
        value = value << 8 | bytes[i];
    return value;
}

// Numbers and bytes of the file, one after the other; past its end nothing but zeros.
class Pieces {
  public:
    Pieces(HANDLE file, std::uint64_t begin)
        : m_file(file), m_buffer(new std::uint8_t[kPieceBytes + kLongestFieldBytes]), m_begin(begin) {}

    std::uint64_t position() const { return m_begin + m_used; }
    void skip(std::uint64_t count) { m_used += static_cast<std::size_t>(count); }
    void goTo(std::uint64_t position) { m_used = static_cast<std::size_t>(position - m_begin); }

    // The next count bytes, at most kLongestFieldBytes.
    const std::uint8_t* bytes(std::size_t count) {
        while (m_used + count > m_filled) {
            const std::size_t kept = m_used < m_filled ? m_filled - m_used : 0;
            std::memmove(m_buffer.get(), m_buffer.get() + (m_filled - kept), kept);
            m_begin += m_filled - kept;
            m_used -= m_filled - kept;
            DWORD got = 0;
            if (!ReadFile(m_file, m_buffer.get() + kept, kPieceBytes, &got, nullptr) || got == 0)
                return kZeros;
            m_filled = kept + got;
        }
        m_used += count;
        return m_buffer.get() + m_used - count;
    }
    std::uint32_t number(std::size_t count) { return numberAt(bytes(count), static_cast<int>(count)); }

  private:
    HANDLE m_file;

    std::unique_ptr<std::uint8_t[]> m_buffer;
    std::uint64_t m_begin; // where the buffer stands in the file
    std::size_t m_used = 0;
    std::size_t m_filled = 0;
};

// Walks the blocks of a record that ends at end; the name is the first Unicode one.
std::wstring nameIn(Pieces& pieces, std::uint64_t end) {
    pieces.skip(pieces.number(4)); // mask
    pieces.skip(pieces.number(4)); // blending ranges
    const std::uint32_t legacyBytes = pieces.number(1);
    pieces.skip((legacyBytes + 4) / 4 * 4 - 1);
    while (pieces.position() < end) {
        const std::uint8_t* head = pieces.bytes(12);
        const std::uint32_t length = numberAt(head + 8, 4);
        if (numberAt(head + 4, 4) != kUnicodeName) {
            pieces.skip(length + length % 2);
            continue;
        }
        const std::uint32_t units = pieces.number(4);
        const std::uint8_t* text = pieces.bytes(units * sizeof(wchar_t));
        std::wstring name(units, L'\0');
        for (std::uint32_t i = 0; i < units; ++i)
            name[i] = static_cast<wchar_t>(numberAt(text + i * sizeof(wchar_t), 2));
        return name;
    }
    return {};
}

} // namespace

void readBareRecords(const BenchDocument& document, std::vector<std::wstring>& names) {
    constexpr std::uint64_t boundsBytes = 16;
    constexpr std::uint64_t blendBytes = 12;
    const std::uint64_t channelBytes = document.path.ends_with(L"b") ? 10 : 6;
    const HANDLE file = CreateFileW(document.path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER begin{};
    begin.QuadPart = static_cast<LONGLONG>(document.recordsBegin);
    SetFilePointerEx(file, begin, nullptr, FILE_BEGIN);
    Pieces pieces(file, document.recordsBegin);
    for (std::uint32_t left = pieces.number(2); left > 0; --left) {
        pieces.skip(boundsBytes);
        pieces.skip(pieces.number(2) * channelBytes + blendBytes);
        const std::uint64_t extraBytes = pieces.number(4);
        const std::uint64_t end = pieces.position() + extraBytes;
        names.push_back(nameIn(pieces, end));
        pieces.goTo(end);
    }
    CloseHandle(file);
}
