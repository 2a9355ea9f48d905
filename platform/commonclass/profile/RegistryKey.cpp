#include "RegistryKey.h"
#include <utility>

namespace _qv_commonclass {

bool RegistryKey::open(const std::wstring& path, KeyAccess access, KeyCreation creation) {
    close();
    const REGSAM rights = access == KeyAccess::Write ? KEY_READ | KEY_WRITE : KEY_READ;
    HKEY key = nullptr;
    const LSTATUS status = creation == KeyCreation::CreateMissing
                               ? RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr,
                                                 REG_OPTION_NON_VOLATILE, rights, nullptr, &key, nullptr)
                               : RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, rights, &key);
    if (status != ERROR_SUCCESS)
        return false;
    m_handle = key;
    return true;
}

void RegistryKey::close() {
    if (m_handle != nullptr)
        RegCloseKey(std::exchange(m_handle, nullptr));
}

HKEY RegistryKey::release() {
    return std::exchange(m_handle, nullptr);
}

} // namespace _qv_commonclass
