// Numbers as a user types them: decimal, with blanks around, and nothing else.
#pragma once

#include "afx/String.h"

#include <cerrno>
#include <cmath>
#include <cwchar>
#include <limits>
#include <type_traits>

inline bool OnlyBlanks(const wchar_t* text) {
    return *(text + wcsspn(text, L" \t")) == L'\0';
}

// Signs are for signed types. False, and value unchanged, for a text that is no number or one outside the
// type.
template <class T> bool ParseWhole(const CString& text, T& value) {
    const wchar_t* start = static_cast<LPCTSTR>(text) + wcsspn(text, L" \t");
    if (!*start || (std::is_unsigned_v<T> && *start == L'-'))
        return false;
    wchar_t* end = nullptr;
    errno = 0;
    using Widest = std::conditional_t<std::is_unsigned_v<T>, unsigned long long, long long>;
    Widest parsed;
    if constexpr (std::is_unsigned_v<T>)
        parsed = wcstoull(start, &end, 10);
    else
        parsed = wcstoll(start, &end, 10);
    if (end == start || errno != 0 || !OnlyBlanks(end) || parsed < std::numeric_limits<T>::min() ||
        parsed > std::numeric_limits<T>::max())
        return false;
    value = static_cast<T>(parsed);
    return true;
}

// False, and value unchanged, for a text that is no finite number of the type.
template <class T> bool ParseReal(const CString& text, T& value) {
    const wchar_t* start = static_cast<LPCTSTR>(text) + wcsspn(text, L" \t");
    wchar_t* end = nullptr;
    const double parsed = wcstod(start, &end);
    if (end == start || !std::isfinite(parsed) || !OnlyBlanks(end))
        return false;
    const T narrowed = static_cast<T>(parsed);
    if (!std::isfinite(narrowed))
        return false;
    value = narrowed;
    return true;
}
