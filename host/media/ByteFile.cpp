#include "ByteFile.h"

CByteFile::CByteFile(LPCWSTR path)
    : m_file(::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                           nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
}

CByteFile::~CByteFile() {
    if (m_file != INVALID_HANDLE_VALUE)
        ::CloseHandle(m_file);
}

LONGLONG CByteFile::Size() const {
    LARGE_INTEGER size = {};
    return m_file != INVALID_HANDLE_VALUE && ::GetFileSizeEx(m_file, &size) ? size.QuadPart : 0;
}

size_t CByteFile::Read(std::span<std::uint8_t> block, LONGLONG offset) const {
    LARGE_INTEGER place = {};
    place.QuadPart = offset;
    DWORD got = 0;
    if (m_file == INVALID_HANDLE_VALUE || !::SetFilePointerEx(m_file, place, nullptr, FILE_BEGIN) ||
        !::ReadFile(m_file, block.data(), static_cast<DWORD>(block.size()), &got, nullptr))
        return 0;
    return got;
}

std::vector<std::uint8_t> CByteFile::Bytes(size_t count, LONGLONG offset) const {
    std::vector<std::uint8_t> bytes(count);
    bytes.resize(Read(bytes, offset));
    return bytes;
}

std::uint32_t BigNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width) {
    std::uint32_t value = 0;
    for (int i = 0; i < width; ++i)
        value = value << 8 | bytes[at + static_cast<size_t>(i)];
    return value;
}

std::uint32_t LittleNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width) {
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = value << 8 | bytes[at + static_cast<size_t>(i)];
    return value;
}
