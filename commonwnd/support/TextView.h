// Between the framework's strings and plain texts.
#pragma once

#include <afx.h>

#include <string_view>

namespace _qv_commonwnd {

// The characters of a string; valid as long as the string is not changed.
inline std::wstring_view ViewOf(const CString& text) {
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}
std::wstring_view ViewOf(CString&& text) = delete;

inline CString TextOf(std::wstring_view text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

} // namespace _qv_commonwnd
