// Names of keys and values, and root paths, checked and brought into form.
#include "RegistryNames.h"
#include <cwchar>

namespace _qv_commonclass {

std::optional<std::wstring> registryKeyName(const wchar_t* name) {
    if (name == nullptr || *name == L'\0' || wcsnlen(name, kRegistryKeyMaxChars + 1) > kRegistryKeyMaxChars)
        return std::nullopt;
    std::wstring keyName;
    for (const wchar_t* unit = name; *unit != L'\0'; ++unit) {
        if (*unit == L'\\')
            keyName += L"%5C";
        else if (*unit == L'%')
            keyName += L"%25";
        else
            keyName += *unit;
    }
    if (keyName.size() > kRegistryKeyMaxChars)
        return std::nullopt;
    return keyName;
}

bool isRegistryValueName(const wchar_t* name) {
    return name != nullptr && *name != L'\0' &&
           wcsnlen(name, kRegistryValueNameMaxChars + 1) <= kRegistryValueNameMaxChars;
}

std::optional<std::wstring> registryRootPath(const wchar_t* path, std::size_t maxChars) {
    if (path == nullptr || wcsnlen(path, maxChars + 1) > maxChars)
        return std::nullopt;
    std::wstring_view rest = path;
    while (!rest.empty() && rest.front() == L'\\')
        rest.remove_prefix(1);
    while (!rest.empty() && rest.back() == L'\\')
        rest.remove_suffix(1);
    const std::wstring root(rest);
    for (bool isLast = false; !isLast;) {
        const std::size_t end = rest.find(L'\\');
        isLast = end == std::wstring_view::npos;
        const std::size_t length = isLast ? rest.size() : end;
        if (length == 0 || length > kRegistryKeyMaxChars)
            return std::nullopt;
        rest.remove_prefix(isLast ? length : length + 1);
    }
    return root;
}

} // namespace _qv_commonclass
