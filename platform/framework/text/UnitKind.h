// What kind of UTF-16 unit a unit is, and its other case: ASCII is answered here, everything else by the
// system's tables, whatever the C locale.
#pragma once

#include <windows.h>

constexpr WCHAR kAfterAscii = 0x80;

inline bool IsHighSurrogate(WCHAR ch) noexcept {
    return ch >= 0xD800 && ch <= 0xDBFF;
}

inline bool IsLowSurrogate(WCHAR ch) noexcept {
    return ch >= 0xDC00 && ch <= 0xDFFF;
}

inline bool IsSpace(WCHAR ch) noexcept {
    WORD type = 0;
    if (ch < kAfterAscii)
        return ch == L' ' || (ch >= L'\t' && ch <= L'\r');
    return ::GetStringTypeW(CT_CTYPE1, &ch, 1, &type) && (type & C1_SPACE) != 0;
}

// Unit by unit, so that a text's length never changes.
inline WCHAR UpperCase(WCHAR ch) noexcept {
    if (ch < kAfterAscii)
        return ch >= L'a' && ch <= L'z' ? static_cast<WCHAR>(ch - L'a' + L'A') : ch;
    ::CharUpperBuffW(&ch, 1);
    return ch;
}

inline WCHAR LowerCase(WCHAR ch) noexcept {
    if (ch < kAfterAscii)
        return ch >= L'A' && ch <= L'Z' ? static_cast<WCHAR>(ch - L'A' + L'a') : ch;
    ::CharLowerBuffW(&ch, 1);
    return ch;
}
