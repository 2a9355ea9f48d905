#include "TextCase.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cwctype>
#endif

namespace _qv_commonwnd {

namespace {

// The run-time's own towlower follows the process's locale and knows ASCII only in the default one; the
// system's tables are those that file names are compared with.
#ifdef _WIN32
wchar_t SystemLower(wchar_t unit) {
    CharLowerBuffW(&unit, 1);
    return unit;
}

wchar_t SystemUpper(wchar_t unit) {
    CharUpperBuffW(&unit, 1);
    return unit;
}
#else
wchar_t SystemLower(wchar_t unit) {
    return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(unit)));
}

wchar_t SystemUpper(wchar_t unit) {
    return static_cast<wchar_t>(std::towupper(static_cast<wint_t>(unit)));
}
#endif

constexpr wchar_t kFirstNonAscii = 0x80;
// Nothing from here on to the end of the plane but the full-width letters has a case.
constexpr wchar_t kFirstCaseless = 0x2E80;
constexpr wchar_t kLastCaseless = 0xA63F;

bool IsCaseless(wchar_t unit) {
    return unit >= kFirstCaseless && unit <= kLastCaseless;
}

template <class Map> std::wstring MapText(std::wstring_view text, Map map) {
    std::wstring mapped(text);
    for (wchar_t& unit : mapped)
        unit = map(unit);
    return mapped;
}

} // namespace

wchar_t LowerUnit(wchar_t unit) {
    if (unit < kFirstNonAscii)
        return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit + (L'a' - L'A')) : unit;
    if (IsCaseless(unit))
        return unit;
    const wchar_t lower = SystemLower(unit);
    return SystemUpper(lower) == unit ? lower : unit;
}

wchar_t UpperUnit(wchar_t unit) {
    if (unit < kFirstNonAscii)
        return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - (L'a' - L'A')) : unit;
    if (IsCaseless(unit))
        return unit;
    const wchar_t upper = SystemUpper(unit);
    return SystemLower(upper) == unit ? upper : unit;
}

std::wstring LowerText(std::wstring_view text) {
    return MapText(text, LowerUnit);
}

std::wstring UpperText(std::wstring_view text) {
    return MapText(text, UpperUnit);
}

bool EqualNoCase(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && LowerUnit(a[i]) != LowerUnit(b[i]))
            return false;
    return true;
}

} // namespace _qv_commonwnd
