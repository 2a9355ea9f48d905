#include "DictParse.h"

#include <cstdint>

namespace _qv_commonctrl {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

struct Utf8Char {
    char32_t value;
    std::size_t length; // bytes it takes; 0 for a sequence that is no character
};

Utf8Char ReadUtf8(std::string_view text) {
    constexpr char32_t kLast = 0x10FFFF;
    const auto byte = [text](std::size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {0, 0};
    char32_t value = lead & (0xFF >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {0, 0};
        value = value << 6 | (byte(i) & 0x3F);
    }
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < kLeast[length] || value > kLast || surrogate)
        return {0, 0};
    return {value, length};
}

void AppendUtf16(std::u16string& text, char32_t value) {
    if (value < 0x10000) {
        text.push_back(static_cast<char16_t>(value));
        return;
    }
    value -= 0x10000;
    text.push_back(static_cast<char16_t>(0xD800 + (value >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (value & 0x3FF)));
}

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Unescape(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
        const char* meaning = next == 'n'    ? "\r\n"
                              : next == 't'  ? "\t"
                              : next == 's'  ? " "
                              : next == '\\' ? "\\"
                                             : nullptr;
        if (meaning) {
            plain += meaning;
            ++i;
        } else {
            plain.push_back(text[i]);
        }
    }
    return plain;
}

void ReadLine(std::string_view line, DictTexts& texts) {
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (line.starts_with('#'))
        return;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        return;
    std::u16string key = DecodeUtf8(TrimBlanks(line.substr(0, equals)));
    if (key.empty() || key.size() > kMaxDictKeyUnits)
        return;
    std::u16string text = DecodeUtf8(Unescape(TrimBlanks(line.substr(equals + 1))));
    if (text.size() > kMaxDictTextUnits)
        text.resize(IsHighSurrogate(text[kMaxDictTextUnits - 1]) ? kMaxDictTextUnits - 1 : kMaxDictTextUnits);
    std::erase(text, u'\0'); // a text ends at its first NUL for every user
    texts[std::move(key)] = std::move(text);
}

} // namespace

std::u16string DecodeUtf8(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        const Utf8Char c = ReadUtf8(text);
        if (c.length)
            AppendUtf16(wide, c.value);
        else
            wide.push_back(kReplacement);
        text.remove_prefix(c.length ? c.length : 1);
    }
    return wide;
}

DictTexts ParseDict(std::string_view text) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    DictTexts texts;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        ReadLine(text.substr(0, end), texts);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return texts;
}

} // namespace _qv_commonctrl
