// Shows framework values in GoogleTest's messages.
#pragma once

#include "afxstr.h"
#include "atltypes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

// Units outside printable ASCII appear as \xHHHH.
inline std::string Shown(const CString& text) {
    std::string shown;
    for (int i = 0; i < text.GetLength(); ++i) {
        const WCHAR unit = text[i];
        char hex[8];
        if (unit >= 0x20 && unit < 0x7F) {
            shown += static_cast<char>(unit);
        } else {
            snprintf(hex, sizeof(hex), "\\x%04X", static_cast<unsigned>(unit));
            shown += hex;
        }
    }
    return shown;
}

inline std::ostream& operator<<(std::ostream& out, const CString& text) {
    return out << '"' << Shown(text) << '"';
}

inline std::ostream& operator<<(std::ostream& out, const CRect& r) {
    return out << '(' << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << ')';
}

inline std::ostream& operator<<(std::ostream& out, const CPoint& p) {
    return out << '(' << p.x << ", " << p.y << ')';
}

inline std::ostream& operator<<(std::ostream& out, const CSize& s) {
    return out << '(' << s.cx << " x " << s.cy << ')';
}

// Equal in length and every unit, NULs included.
inline ::testing::AssertionResult SameText(const CString& expected, const CString& actual) {
    if (expected.GetLength() == actual.GetLength() &&
        std::wstring_view(expected, static_cast<size_t>(expected.GetLength())) ==
            std::wstring_view(actual, static_cast<size_t>(actual.GetLength())) &&
        actual.GetString()[actual.GetLength()] == L'\0')
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "expected \"" << Shown(expected) << "\", is \"" << Shown(actual) << '"';
}
