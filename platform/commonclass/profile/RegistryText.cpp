// One text value of an open registry key: read whatever its length, stored, removed.
#include "RegistryText.h"
#include "QVProfile.h"
#include "RegistryNames.h"
#include <algorithm>
#include <vector>

namespace _qv_commonclass {

namespace {

// Most texts are paths: they fit the first try.
constexpr DWORD kFirstTryBytes = 1024;
constexpr DWORD kMaxBytes = (static_cast<DWORD>(kProfileValueMaxChars) + 1) * sizeof(wchar_t);
// A value that another program makes longer between two tries is not chased for ever.
constexpr int kMaxTries = 4;

bool isText(DWORD type) {
    return type == REG_SZ || type == REG_EXPAND_SZ;
}

// Others may have stored no ending NUL, several, or half a character: only whole units before the first NUL
// count.
CString textOf(const std::vector<wchar_t>& buffer, DWORD bytes) {
    const auto end = buffer.begin() + std::min<std::size_t>(bytes / sizeof(wchar_t), buffer.size());
    return CString(buffer.data(), static_cast<int>(std::find(buffer.begin(), end, L'\0') - buffer.begin()));
}

} // namespace

bool readRegistryText(HKEY key, LPCWSTR name, CString& value) {
    if (!isRegistryValueName(name))
        return false;
    DWORD capacity = kFirstTryBytes;
    for (int tries = 0; tries < kMaxTries; ++tries) {
        std::vector<wchar_t> buffer(capacity / sizeof(wchar_t));
        DWORD type = REG_NONE;
        DWORD bytes = capacity;
        const LSTATUS status =
            RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &bytes);
        if (status == ERROR_SUCCESS && isText(type)) {
            value = textOf(buffer, bytes);
            return value.GetLength() <= kProfileValueMaxChars;
        }
        if (status != ERROR_MORE_DATA || !isText(type) || bytes > kMaxBytes)
            return false;
        capacity = bytes + bytes % sizeof(wchar_t);
    }
    return false;
}

bool writeRegistryText(HKEY key, LPCWSTR name, LPCWSTR value) {
    if (!isRegistryValueName(name))
        return false;
    const std::size_t length = wcsnlen(value, static_cast<std::size_t>(kProfileValueMaxChars) + 1);
    if (length > static_cast<std::size_t>(kProfileValueMaxChars))
        return false;
    return RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value),
                          static_cast<DWORD>((length + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool removeRegistryText(HKEY key, LPCWSTR name) {
    if (!isRegistryValueName(name))
        return false;
    const LSTATUS status = RegDeleteValueW(key, name);
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

} // namespace _qv_commonclass
