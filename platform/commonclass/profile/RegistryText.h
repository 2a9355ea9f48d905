// One text value of an open registry key.
#pragma once

#include <afxwin.h>

namespace _qv_commonclass {

// Reads, stores and removes one text value of an open key. name is checked here as well. What cannot be read
// as a text of at most kProfileValueMaxChars answers false and leaves value alone.
bool readRegistryText(HKEY key, LPCWSTR name, CString& value);
bool writeRegistryText(HKEY key, LPCWSTR name, LPCWSTR value);
// A value that is not there counts as removed.
bool removeRegistryText(HKEY key, LPCWSTR name);

} // namespace _qv_commonclass
