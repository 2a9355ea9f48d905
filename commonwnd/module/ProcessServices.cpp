#include "ProcessServices.h"

#include "support/QuietErrors.h"

#include <windows.h>

namespace _qv_commonwnd {

IProcessServices::Module ProcessServices::Load(const std::wstring& fileName) {
    const QuietErrors quiet;
    return LoadLibraryW(fileName.c_str());
}

void ProcessServices::Free(Module module) {
    FreeLibrary(static_cast<HMODULE>(module));
}

CoreLibraryEntry ProcessServices::FindEntry(Module module, const char* name) {
    const FARPROC entry = GetProcAddress(static_cast<HMODULE>(module), name);
    return reinterpret_cast<CoreLibraryEntry>(reinterpret_cast<void*>(entry));
}

std::wstring ProcessServices::ExecutablePath() {
    wchar_t path[MAX_PATH];
    DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (length >= MAX_PATH)
        length = MAX_PATH - 1;
    return std::wstring(path, length);
}

bool ProcessServices::IsDirectory(const std::wstring& path) {
    const QuietErrors quiet;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void ProcessServices::VisitDirectories(const std::wstring& pattern,
                                       const std::function<bool(const std::wstring& name)>& visitor) {
    const QuietErrors quiet;
    WIN32_FIND_DATAW entry;
    const HANDLE find = FindFirstFileW(pattern.c_str(), &entry);
    if (find == INVALID_HANDLE_VALUE)
        return;
    bool more = true;
    while (more) {
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            more = visitor(entry.cFileName);
        more = more && FindNextFileW(find, &entry);
    }
    FindClose(find);
}

std::optional<std::wstring> ProcessServices::ReadVariable(const wchar_t* name, std::size_t maxUnits) {
    std::wstring value(maxUnits + 1, L'\0');
    SetLastError(ERROR_SUCCESS);
    const DWORD length = GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    if (length > maxUnits || (length == 0 && GetLastError() != ERROR_SUCCESS))
        return std::nullopt;
    value.resize(length);
    return value;
}

void ProcessServices::WriteVariable(const wchar_t* name, const std::wstring& value) {
    SetEnvironmentVariableW(name, value.c_str());
}

} // namespace _qv_commonwnd
