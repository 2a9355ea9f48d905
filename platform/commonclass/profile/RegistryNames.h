// What names the registry takes, and names brought into a form that it takes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace _qv_commonclass {

// What the registry allows, in UTF-16 units.
inline constexpr std::size_t kRegistryKeyMaxChars = 255;
inline constexpr std::size_t kRegistryValueNameMaxChars = 16383;

// A section's or item's name as one registry key name. The registry nests at backslashes, and a section must
// not reach into another one, so backslashes become "%5C" and percent signs "%25"; different names stay
// different. Nothing when name is null, empty or its key name would be too long.
std::optional<std::wstring> registryKeyName(const wchar_t* name);

// Whether name can name a value: not null, not empty, not too long.
bool isRegistryValueName(const wchar_t* name);

// A root path without leading and trailing backslashes. Nothing when path is null, longer than maxChars, or
// has an empty or overlong component.
std::optional<std::wstring> registryRootPath(const wchar_t* path, std::size_t maxChars);

} // namespace _qv_commonclass
