#include "HeaderBytes.h"

CByteFile::CByteFile(LPCWSTR path)
    : m_file(::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                           nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
}

CByteFile::~CByteFile() {
    if (m_file != INVALID_HANDLE_VALUE)
        ::CloseHandle(m_file);
}

std::vector<std::uint8_t> CByteFile::Bytes(size_t count, LONGLONG offset) const {
    if (m_file == INVALID_HANDLE_VALUE)
        return {};
    std::vector<std::uint8_t> bytes(count);
    LARGE_INTEGER place = {};
    place.QuadPart = offset;
    DWORD got = 0;
    if (!::SetFilePointerEx(m_file, place, nullptr, FILE_BEGIN) ||
        !::ReadFile(m_file, bytes.data(), static_cast<DWORD>(count), &got, nullptr))
        got = 0;
    bytes.resize(got);
    return bytes;
}

std::vector<std::uint8_t> HeaderBytes(LPCWSTR path, size_t count, LONGLONG offset) {
    return CByteFile(path).Bytes(count, offset);
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
