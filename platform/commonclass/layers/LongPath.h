// Paths beyond the system's limit of 260 characters.
#pragma once

#include <string>

namespace _qv_commonclass {

// path in the form that lifts the system's limit of 260 characters (\\?\C:\..., \\?\UNC\server\...); short
// paths and paths that have such a form already are answered as they are. Null counts as empty.
std::wstring longPath(const wchar_t* path);

} // namespace _qv_commonclass
