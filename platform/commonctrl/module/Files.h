// Files.h: whole files into memory, and whether a folder is there.
#pragma once

#include <cstddef>
#include <string>

namespace _qv_commonctrl {

// Reads a whole file. FALSE, and `bytes` empty, when it cannot be opened or read or is larger than
// `mostBytes`.
bool ReadWholeFile(const std::wstring& path, std::size_t mostBytes, std::string& bytes);

bool FolderExists(const std::wstring& path);

} // namespace _qv_commonctrl
