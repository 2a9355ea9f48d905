#include "QVModule.h"

#include <memory>

namespace _qv_commonctrl {

namespace {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FileHandle = std::unique_ptr<HANDLE, HandleCloser>;

FileHandle OpenToRead(const std::wstring& path) {
    FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE)
        static_cast<void>(file.release());
    return file;
}

std::wstring ModulePath() {
    constexpr std::size_t kMostUnits = 32768;
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(GetOwnModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size() || path.size() >= kMostUnits) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring WithoutLastPart(const std::wstring& path) {
    const std::size_t slash = path.find_last_of(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

} // namespace

HINSTANCE GetOwnModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&GetOwnModule), &module);
    return module;
}

std::wstring GetDataFolder(const wchar_t* name) {
    return WithoutLastPart(WithoutLastPart(ModulePath())) + L"\\" + name;
}

bool ReadWholeFile(const std::wstring& path, std::size_t mostBytes, std::string& bytes) {
    bytes.clear();
    const FileHandle file = OpenToRead(path);
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

void DebugLine(const std::wstring& text) {
    OutputDebugStringW((L"QVCommonCtrlU: " + text + L"\n").c_str());
}

} // namespace _qv_commonctrl
