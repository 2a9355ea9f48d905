// What a PE file says of itself: which DLLs it imports, which names it exports, its protection flags.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class PeFile {
  public:
    // Not valid when the file is absent or is no 64-bit PE file.
    explicit PeFile(const std::wstring& path);

    bool valid() const { return m_headers != nullptr; }

    // Names of the imported DLLs as they are written in the file.
    std::vector<std::string> imports() const;

    // Exported names, not demangled.
    std::vector<std::string> exports() const;

    // IMAGE_DLLCHARACTERISTICS_ bits.
    WORD characteristics() const { return m_headers->OptionalHeader.DllCharacteristics; }

  private:
    // Bytes at a relative virtual address, nullptr when that lies outside the file or fewer than size are
    // there.
    const char* at(DWORD address, size_t size) const;
    std::string textAt(DWORD address) const;
    IMAGE_DATA_DIRECTORY directory(int index) const { return m_headers->OptionalHeader.DataDirectory[index]; }

    std::string m_bytes;
    const IMAGE_NT_HEADERS64* m_headers = nullptr; // inside m_bytes
};
