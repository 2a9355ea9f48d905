// Letter case of single UTF-16 units, the same for every locale.
#pragma once

#include <string>
#include <string_view>

namespace _qv_commonwnd {

// The lower or upper case of a unit. A unit whose other case would not lead back to it (such as the dotted
// capital I) stays as it is: a path in which only such letters' case was changed still names the same file.
wchar_t LowerUnit(wchar_t unit);
wchar_t UpperUnit(wchar_t unit);

std::wstring LowerText(std::wstring_view text);
std::wstring UpperText(std::wstring_view text);

// Whether two texts are equal when letter case does not count.
bool EqualNoCase(std::wstring_view a, std::wstring_view b);

} // namespace _qv_commonwnd
