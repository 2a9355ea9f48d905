// ByteFile.h: a file's bytes at any place, and the numbers in them.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <span>
#include <vector>

// A file open for reading, shared with everybody. Nothing can be read of one that could not be opened.
class CByteFile {
  public:
    explicit CByteFile(LPCWSTR path);
    ~CByteFile();
    CByteFile(const CByteFile&) = delete;
    CByteFile& operator=(const CByteFile&) = delete;

    LONGLONG Size() const; // bytes

    // Fills `block` from `offset` on and says how many bytes there were; 0 at the end and when they cannot be read.
    size_t Read(std::span<std::uint8_t> block, LONGLONG offset) const;
    // The same as a block of its own, at most `count` bytes long.
    std::vector<std::uint8_t> Bytes(size_t count, LONGLONG offset) const;

  private:
    HANDLE m_file;
};

// A number of `width` (1 to 4) bytes at `at`, which must lie inside: highest or lowest byte first.
std::uint32_t BigNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
std::uint32_t LittleNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
