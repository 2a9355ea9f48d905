// FolderPath.h: paths and names of folders as text; nothing here touches a drive.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace _qv_commonctrl {

// The whole path of a name below a folder (a drive root ends with a back-slash already).
std::wstring JoinPath(const std::wstring& folder, const std::wstring& name);

// A path as the controls give it out: back-slashes, none at the end except for a drive root.
std::wstring NormalFolderPath(const std::wstring& path);

// The length of the part that is no folder of its own: C:\ or \\server\share. 0 for a path that is not
// absolute.
std::size_t RootLength(const std::wstring& path);

// A path as the system takes it: one beyond the classic limit gets the prefix that switches the limit off.
std::wstring LongPath(const std::wstring& path);

// As the file system tells names apart.
bool SameName(const std::wstring& a, const std::wstring& b);
struct NameLess {
    bool operator()(const std::wstring& a, const std::wstring& b) const;
};

} // namespace _qv_commonctrl
