// CZ5Regkey: the open item, its texts.
#include "Z5Regkey.h"
#include "ProfileRoot.h"
#include "RegistryKey.h"
#include "RegistryNames.h"
#include "RegistryText.h"
#include <utility>

namespace _qv_commonclass {

CZ5Regkey::CZ5Regkey() : m_hKey(nullptr) {
}

CZ5Regkey::~CZ5Regkey() {
    Close();
}

BOOL CZ5Regkey::OpenItem(LPCWSTR item, BOOL create) {
    Close();
    try {
        const auto keyName = registryKeyName(item);
        if (!keyName)
            return FALSE;
        const std::wstring path = storePath(Store::Items, *keyName);
        const KeyCreation creation = create ? KeyCreation::CreateMissing : KeyCreation::OpenOnly;
        RegistryKey key;
        if (key.open(path, KeyAccess::Write, creation) != ERROR_SUCCESS &&
            key.open(path, KeyAccess::Read, KeyCreation::OpenOnly) != ERROR_SUCCESS)
            return FALSE;
        m_hKey = key.release();
        return TRUE;
    } catch (...) {
        return FALSE;
    }
}

BOOL CZ5Regkey::GetValue(LPCWSTR name, CString& value) const {
    if (m_hKey == nullptr)
        return FALSE;
    try {
        return readRegistryText(m_hKey, name, value);
    } catch (...) {
        return FALSE;
    }
}

BOOL CZ5Regkey::SetValue(LPCWSTR name, LPCWSTR value) {
    if (m_hKey == nullptr)
        return FALSE;
    return value == nullptr ? removeRegistryText(m_hKey, name) : writeRegistryText(m_hKey, name, value);
}

void CZ5Regkey::Close() {
    if (m_hKey != nullptr)
        RegCloseKey(std::exchange(m_hKey, nullptr));
}

} // namespace _qv_commonclass
