// RegistryKey: an open registry key for the length of a scope.
#pragma once

#include <string>
#include <windows.h>

namespace _qv_commonclass {

enum class KeyAccess { Read, Write, SetValue };
enum class KeyCreation { OpenOnly, CreateMissing };

// One open registry key; closed where it goes out of scope. Not copyable.
class RegistryKey {
  public:
    RegistryKey() = default;
    ~RegistryKey() { close(); }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    // Opens path below HKEY_CURRENT_USER after closing what was open. Answers the system's status; nothing is
    // open when it is not ERROR_SUCCESS.
    LSTATUS open(const std::wstring& path, KeyAccess access, KeyCreation creation);
    void close();
    HKEY handle() const { return m_handle; }
    // Gives the key to the caller, who closes it.
    HKEY release();

  private:
    HKEY m_handle = nullptr;
};

} // namespace _qv_commonclass
