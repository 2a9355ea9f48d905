// The profile: texts read, stored and removed under their section.
#include "QVProfile.h"
#include "ProfileRoot.h"
#include "RegistryKey.h"
#include "RegistryNames.h"
#include "RegistryText.h"

namespace _qv_commonclass {

namespace {

bool isAbsent(LSTATUS status) {
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

bool removeSection(const std::wstring& path) {
    return isAbsent(RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str()));
}

bool removeValue(const std::wstring& path, LPCWSTR key) {
    RegistryKey section;
    const LSTATUS status = section.open(path, KeyAccess::SetValue, KeyCreation::OpenOnly);
    return status == ERROR_SUCCESS ? removeRegistryText(section.handle(), key) : isAbsent(status);
}

bool writeValue(const std::wstring& path, LPCWSTR key, LPCWSTR value) {
    // Checked before the section is made: a refused call leaves nothing behind.
    if (wcsnlen(value, static_cast<std::size_t>(kProfileValueMaxChars) + 1) >
        static_cast<std::size_t>(kProfileValueMaxChars))
        return false;
    RegistryKey section;
    return section.open(path, KeyAccess::Write, KeyCreation::CreateMissing) == ERROR_SUCCESS &&
           writeRegistryText(section.handle(), key, value);
}

bool readValue(LPCWSTR section, LPCWSTR key, CString& value) {
    const auto keyName = registryKeyName(section);
    RegistryKey opened;
    return keyName && isRegistryValueName(key) &&
           opened.open(storePath(Store::Profile, *keyName), KeyAccess::Read, KeyCreation::OpenOnly) ==
               ERROR_SUCCESS &&
           readRegistryText(opened.handle(), key, value);
}

} // namespace

CString QV_GetProfileString(LPCWSTR section, LPCWSTR key, LPCWSTR defaultValue) {
    try {
        CString value;
        return readValue(section, key, value) ? value : CString(defaultValue);
    } catch (...) {
        return CString();
    }
}

BOOL QV_WriteProfileString(LPCWSTR section, LPCWSTR key, LPCWSTR value) {
    try {
        const auto keyName = registryKeyName(section);
        if (!keyName || (key != nullptr && !isRegistryValueName(key)))
            return FALSE;
        const std::wstring path = storePath(Store::Profile, *keyName);
        if (key == nullptr)
            return removeSection(path);
        return value == nullptr ? removeValue(path, key) : writeValue(path, key, value);
    } catch (...) {
        return FALSE;
    }
}

} // namespace _qv_commonclass
