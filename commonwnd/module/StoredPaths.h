// The folders that the library remembers for the user: the profile section and its keys are named here alone.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

inline constexpr wchar_t kResPathKey[] = L"ResPath";     // resource information files
inline constexpr wchar_t kMediaPathKey[] = L"MediaPath"; // video and audio files
inline constexpr wchar_t kFilePathKey[] = L"FilePath";   // last shown in the kept directory list

// The folder stored under a key, as it was stored; empty when there is none.
CString StoredPath(LPCWSTR key);

// Stores a folder as it stands, an empty one too. A null or empty key stores nothing.
void StorePath(LPCWSTR key, LPCWSTR path);

} // namespace _qv_commonwnd
