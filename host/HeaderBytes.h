// HeaderBytes.h: a few bytes of a file and the numbers in them.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <vector>

// A file open for reading, shared with everybody. Nothing can be read of one that could not be opened.
class CByteFile {
  public:
    explicit CByteFile(LPCWSTR path);
    ~CByteFile();
    CByteFile(const CByteFile&) = delete;
    CByteFile& operator=(const CByteFile&) = delete;

    // At most `count` bytes from `offset`; fewer or none when there are no more or they cannot be read.
    std::vector<std::uint8_t> Bytes(size_t count, LONGLONG offset) const;

  private:
    HANDLE m_file;
};

// The same of a file that is opened only for it.
std::vector<std::uint8_t> HeaderBytes(LPCWSTR path, size_t count, LONGLONG offset = 0);

// A number of `width` (1 to 4) bytes at `at`, which must lie inside: highest or lowest byte first.
std::uint32_t BigNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
std::uint32_t LittleNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
