#pragma once

#include "layers/FileByteSource.h"

// A file that counts what is read of it.
class CountingSource final : public _qv_commonclass::psd::ByteSource {
  public:
    explicit CountingSource(const wchar_t* path) : m_file(path) {}

    std::uint64_t bytesRead() const noexcept { return m_bytesRead; }
    std::uint64_t size() const noexcept override { return m_file.size(); }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override {
        const std::size_t got = m_file.readAt(offset, to, count);
        m_bytesRead += got;
        return got;
    }

  private:
    _qv_commonclass::FileByteSource m_file;
    std::uint64_t m_bytesRead = 0;
};
