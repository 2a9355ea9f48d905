// Where profile and items are kept: the path of a section or an item below the root.
#pragma once

#include <string>

namespace _qv_commonclass {

// The two stores below the root. They are kept apart because registry names ignore case: the section
// "PathSet" and the item "pathset" would else be one key.
enum class Store { Profile, Items };

// The path below HKEY_CURRENT_USER of one section or item; keyName comes from registryKeyName.
std::wstring storePath(Store store, const std::wstring& keyName);

} // namespace _qv_commonclass
