#include "Files.h"

#include "Guards.h"

namespace _qv_commonctrl {

bool ReadWholeFile(const std::wstring& path, std::size_t mostBytes, std::string& bytes) {
    bytes.clear();
    const auto file =
        Valid<Handle>(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    LARGE_INTEGER size = {};
    if (!file || !GetFileSizeEx(file.get(), &size) || size.QuadPart < 0 ||
        static_cast<ULONGLONG>(size.QuadPart) > mostBytes)
        return false;
    bytes.resize(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) {
        bytes.clear();
        return false;
    }
    bytes.resize(read); // shorter when the file shrank meanwhile
    return true;
}

bool FolderExists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

} // namespace _qv_commonctrl
