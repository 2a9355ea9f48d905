// The profile: texts by section and key, kept for the user in the registry.
#pragma once

#include <afxwin.h>
#include "QVCommonClassApi.h"

namespace _qv_commonclass {

// The profile: texts by section and key, kept for the user in the registry below
// HKEY_CURRENT_USER\<root>\Profile\<section>. Sections and keys ignore case. The items of CZ5Regkey live
// beside it under <root>\Items, so that a section and an item of one name never meet.
//
//     QV_WriteProfileString(L"PathSet", L"ResPath", L"D:\\Resources");
//     CString folder = QV_GetProfileString(L"PathSet", L"ResPath", L""); // "D:\Resources"
//
// All four functions may be called from any thread. None of them throws or reports anything to the user.

// Limits, in UTF-16 units. A backslash or a percent sign in a section counts three.
inline constexpr int kProfileSectionMaxChars = 255;
inline constexpr int kProfileKeyMaxChars = 16383;
inline constexpr int kProfileValueMaxChars = 1048576;
inline constexpr int kProfileRootMaxChars = 1024;

// The text stored under section and key. Answers defaultValue (null counts as empty) when section or key is
// null, empty or over its limit, when nothing is stored there, when what is stored is not a text, is longer
// than kProfileValueMaxChars or must not be read. A stored empty text is answered as empty, not as the
// default. A text stored without its ending NUL or with an odd number of bytes by someone else is read as far
// as it goes; it ends at its first NUL. A section may hold backslashes: they are part of its name and do not
// nest.
QVCOMMONCLASS_API CString QV_GetProfileString(LPCWSTR section, LPCWSTR key, LPCWSTR defaultValue);

// Stores value under section and key; creates the section when it is missing. As in the system's own profile
// calls a null value removes the key, and a null key removes the whole section; removing what is not there
// succeeds. An empty value is stored. FALSE, with nothing changed, when section is null or empty, key is
// empty, a limit is passed or the registry refuses.
QVCOMMONCLASS_API BOOL QV_WriteProfileString(LPCWSTR section, LPCWSTR key, LPCWSTR value);

// Chooses where profile and items are kept: a path below HKEY_CURRENT_USER such as
// L"Software\\Maker\\Product". Leading and trailing backslashes are dropped. To be called by the host before
// its first use; what was stored under the former root stays there. Items already open stay where they were
// opened. FALSE, with the root unchanged, when the path is null, empty, longer than kProfileRootMaxChars, or
// has an empty or overlong (over 255) component.
QVCOMMONCLASS_API BOOL QV_SetProfileRoot(LPCWSTR registryPath);

// The present root, without leading or trailing backslash. L"Software\\QVCommonWnd" until the host chooses.
QVCOMMONCLASS_API CString QV_GetProfileRoot();

} // namespace _qv_commonclass
