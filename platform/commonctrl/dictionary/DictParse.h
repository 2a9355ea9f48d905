// DictParse.h: reads a dictionary file. Plain functions over plain values, no window and no file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace _qv_commonctrl {

// Hashes a key of any kind of string alike, so that a look-up needs no temporary string.
template <class Char> struct DictHash {
    using is_transparent = void;
    std::size_t operator()(std::basic_string_view<Char> key) const noexcept {
        return std::hash<std::basic_string_view<Char>>()(key);
    }
};

// key -> text, both UTF-16
using DictTexts = std::unordered_map<std::u16string, std::u16string, DictHash<char16_t>, std::equal_to<>>;

constexpr std::size_t kMaxDictKeyUnits = 256;
constexpr std::size_t kMaxDictTextUnits = 65536;

// UTF-8 to UTF-16. A byte sequence that is no character becomes one U+FFFD and reading goes on at the next
// byte.
std::u16string DecodeUtf8(std::string_view text);

// Reads the text of a dictionary file: UTF-8 with or without byte order mark, lines `KEY = text` ended by LF
// or CRLF. Blanks round key and text do not count. In the text a back-slash and n is a line break (CR LF),
// with t a tab, with s a blank, twice a back-slash; before another character it stands for itself. Lines that
// start with # or have no = or no key are skipped. The last of several lines with one key counts.
DictTexts ParseDict(std::string_view text);

} // namespace _qv_commonctrl
