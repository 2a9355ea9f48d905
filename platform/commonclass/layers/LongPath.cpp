// Paths beyond the system's limit of 260 characters, brought into the form that lifts it.
#include "LongPath.h"
#include <string_view>
#include <windows.h>

namespace _qv_commonclass {

std::wstring longPath(const wchar_t* path) {
    std::wstring given = path != nullptr ? path : L"";
    const bool hasDevicePrefix = given.starts_with(L"\\\\?\\") || given.starts_with(L"\\\\.\\");
    if (given.size() < MAX_PATH || hasDevicePrefix)
        return given;
    // The long form is taken letter for letter, so dots, doubled and forward slashes must be resolved first.
    const DWORD capacity = GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
    std::wstring full(capacity, L'\0');
    const DWORD length = GetFullPathNameW(given.c_str(), capacity, full.data(), nullptr);
    if (length == 0 || length >= capacity)
        return given;
    full.resize(length);
    if (full.starts_with(L"\\\\"))
        return L"\\\\?\\UNC\\" + full.substr(2);
    return L"\\\\?\\" + full;
}

} // namespace _qv_commonclass
