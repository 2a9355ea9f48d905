// RegistryKey: opened below the user's own part of the registry, and closed.
#include "RegistryKey.h"
#include <utility>

namespace _qv_commonclass {

namespace {

REGSAM rightsOf(KeyAccess access) {
    switch (access) {
    case KeyAccess::SetValue:
        return KEY_SET_VALUE;
    case KeyAccess::Write:
        return KEY_READ | KEY_WRITE;
    case KeyAccess::Read:
        break;
    }
    return KEY_READ;
}

} // namespace

LSTATUS RegistryKey::open(const std::wstring& path, KeyAccess access, KeyCreation creation) {
    close();
    HKEY key = nullptr;
    const LSTATUS status =
        creation == KeyCreation::CreateMissing
            ? RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                              rightsOf(access), nullptr, &key, nullptr)
            : RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, rightsOf(access), &key);
    if (status == ERROR_SUCCESS)
        m_handle = key;
    return status;
}

void RegistryKey::close() {
    if (m_handle != nullptr)
        RegCloseKey(std::exchange(m_handle, nullptr));
}

HKEY RegistryKey::release() {
    return std::exchange(m_handle, nullptr);
}

} // namespace _qv_commonclass
