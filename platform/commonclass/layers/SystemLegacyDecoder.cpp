// SystemLegacyDecoder: legacy layer names by the system's code page tables.
#include "SystemLegacyDecoder.h"
#include <algorithm>
#include <windows.h>

namespace _qv_commonclass {

namespace {

constexpr UINT kGbk = 936;
constexpr UINT kShiftJis = 932;

static_assert(sizeof(wchar_t) == sizeof(char16_t));

UINT systemNumber(psd::LegacyCodePage codePage) {
    switch (codePage) {
    case psd::LegacyCodePage::Gbk:
        return kGbk;
    case psd::LegacyCodePage::ShiftJis:
        return kShiftJis;
    case psd::LegacyCodePage::System:
        break;
    }
    return CP_ACP;
}

bool convert(UINT codePage, DWORD flags, std::span<const std::uint8_t> bytes, std::u16string& text) {
    text.resize(bytes.size()); // no code page makes more than one unit of a byte
    const int units = MultiByteToWideChar(
        codePage, flags, reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()),
        reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(std::max(units, 0)));
    return units > 0 || bytes.empty();
}

// Single-byte tables answer their holes with control characters or private ones instead of an error.
bool isFiller(char16_t unit) {
    return (unit >= 0x80 && unit <= 0x9F) || (unit >= 0xE000 && unit <= 0xF8FF) || unit == 0xFFFD;
}

} // namespace

bool SystemLegacyDecoder::decode(psd::LegacyCodePage codePage, std::span<const std::uint8_t> bytes,
                                 std::u16string& text) const {
    return convert(systemNumber(codePage), MB_ERR_INVALID_CHARS, bytes, text) &&
           std::none_of(text.begin(), text.end(), isFiller);
}

bool SystemLegacyDecoder::isSystem(psd::LegacyCodePage codePage) const {
    return codePage == psd::LegacyCodePage::System || GetACP() == systemNumber(codePage);
}

void SystemLegacyDecoder::decodeLossy(std::span<const std::uint8_t> bytes, std::u16string& text) const {
    if (convert(CP_ACP, 0, bytes, text))
        return;
    text.assign(bytes.size(), u'\xFFFD');
}

} // namespace _qv_commonclass
