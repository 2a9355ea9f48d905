// FileByteSource: the bytes of a file on disk for the document reader.
#pragma once

#include "psd/ByteSource.h"
#include <windows.h>

namespace _qv_commonclass {

// The bytes of a file on disk, opened for reading and shared with everybody: the document may well be open in
// the program that paints it.
class FileByteSource final : public psd::ByteSource {
  public:
    // path may be longer than 260 characters, with or without \\?\ in front. What is not a file on a disk
    // (folder, device, pipe) is not opened.
    explicit FileByteSource(const wchar_t* path);
    ~FileByteSource() override;
    FileByteSource(const FileByteSource&) = delete;
    FileByteSource& operator=(const FileByteSource&) = delete;

    bool isOpen() const noexcept { return m_file != INVALID_HANDLE_VALUE; }
    std::uint64_t size() const noexcept override { return m_size; }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override;

  private:
    bool measure() noexcept;

    HANDLE m_file = INVALID_HANDLE_VALUE;
    std::uint64_t m_size = 0;
    std::uint64_t m_position = 0;
};

} // namespace _qv_commonclass
