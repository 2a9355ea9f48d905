#include "FolderPath.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr std::size_t kClassicLimit = 248; // a folder's path must leave room for a short name below it

int CompareNames(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()),
                                TRUE);
}

} // namespace

std::wstring JoinPath(const std::wstring& folder, const std::wstring& name) {
    return folder.ends_with(L'\\') ? folder + name : folder + L"\\" + name;
}

std::wstring NormalFolderPath(const std::wstring& path) {
    constexpr std::size_t kDriveRootUnits = 3; // C:\ and its like
    std::wstring normal = path;
    std::replace(normal.begin(), normal.end(), L'/', L'\\');
    while (normal.size() > 1 && normal.back() == L'\\')
        normal.pop_back();
    if (normal.size() == kDriveRootUnits - 1 && normal[1] == L':')
        normal += L'\\';
    return normal;
}

std::size_t RootLength(const std::wstring& path) {
    if (path.size() >= 3 && path[1] == L':' && path[2] == L'\\')
        return 3;
    if (!path.starts_with(L"\\\\") || path.size() < 3)
        return 0;
    const std::size_t server = path.find(L'\\', 2);
    if (server == std::wstring::npos || server + 1 >= path.size())
        return 0;
    return std::min(path.find(L'\\', server + 1), path.size());
}

std::wstring LongPath(const std::wstring& path) {
    if (path.size() < kClassicLimit || path.starts_with(L"\\\\?\\"))
        return path;
    return path.starts_with(L"\\\\") ? L"\\\\?\\UNC" + path.substr(1) : L"\\\\?\\" + path;
}

bool SameName(const std::wstring& a, const std::wstring& b) {
    return CompareNames(a, b) == CSTR_EQUAL;
}

bool NameLess::operator()(const std::wstring& a, const std::wstring& b) const {
    return CompareNames(a, b) == CSTR_LESS_THAN;
}

} // namespace _qv_commonctrl
