// Legacy layer names: which code page their bytes read best in.
#include "LegacyName.h"
#include <algorithm>

namespace _qv_commonclass::psd {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr int kCommonCharacter = 3;
constexpr int kRareCharacter = 1;
constexpr int kUnlikelyCharacter = -2;

bool within(std::uint8_t value, int low, int high) noexcept {
    return value >= low && value <= high;
}

int gbkPairScore(std::uint8_t lead, std::uint8_t trail) noexcept {
    if (!within(trail, 0xA1, 0xFE))
        return kUnlikelyCharacter; // outside the plane of the everyday character set
    if (within(lead, 0xB0, 0xD7))
        return kCommonCharacter; // first level: the everyday characters
    return within(lead, 0xD8, 0xF7) || within(lead, 0xA1, 0xA3) ? kRareCharacter : kUnlikelyCharacter;
}

bool isKanaPair(std::uint8_t lead, std::uint8_t trail) noexcept {
    return (lead == 0x82 && within(trail, 0x9F, 0xF1)) || (lead == 0x83 && within(trail, 0x40, 0x96));
}

int shiftJisPairScore(std::uint8_t lead, std::uint8_t trail) noexcept {
    if (isKanaPair(lead, trail))
        return kCommonCharacter;
    if (within(lead, 0x88, 0x97) || lead == 0x81 || lead == 0x82)
        return kCommonCharacter - 1; // first level of kanji, punctuation, full-width letters
    return within(lead, 0x98, 0x9F) || within(lead, 0xE0, 0xEA) ? kRareCharacter : kUnlikelyCharacter;
}

bool decodeGuessed(const LegacyDecoder& decoder, Bytes bytes, std::u16string& text) {
    std::u16string japanese;
    if (decoder.decode(LegacyCodePage::System, bytes, text)) {
        if (decoder.isSystem(LegacyCodePage::Gbk) && readsAsKana(bytes) &&
            decoder.decode(LegacyCodePage::ShiftJis, bytes, japanese))
            text.swap(japanese);
        return true;
    }
    const bool isShiftJis = decoder.decode(LegacyCodePage::ShiftJis, bytes, japanese);
    const bool isGbk = decoder.decode(LegacyCodePage::Gbk, bytes, text);
    if (isShiftJis && (!isGbk || shiftJisPlausibility(bytes) > gbkPlausibility(bytes)))
        text.swap(japanese);
    return isShiftJis || isGbk;
}

} // namespace

int gbkPlausibility(Bytes bytes) noexcept {
    int score = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80)
            continue;
        if (i + 1 == bytes.size())
            return score + kUnlikelyCharacter;
        score += gbkPairScore(bytes[i], bytes[i + 1]);
        ++i;
    }
    return score;
}

int shiftJisPlausibility(Bytes bytes) noexcept {
    int score = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80)
            continue;
        if (within(bytes[i], 0xA1, 0xDF)) {
            score += kUnlikelyCharacter; // half-width katakana, one byte
            continue;
        }
        if (i + 1 == bytes.size())
            return score + kUnlikelyCharacter;
        score += shiftJisPairScore(bytes[i], bytes[i + 1]);
        ++i;
    }
    return score;
}

bool readsAsKana(Bytes bytes) noexcept {
    constexpr int enoughKana = 2;
    int kana = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80)
            continue;
        if (i + 1 == bytes.size() || within(bytes[i], 0xA1, 0xDF) ||
            shiftJisPairScore(bytes[i], bytes[i + 1]) < kCommonCharacter - 1)
            return false;
        kana += isKanaPair(bytes[i], bytes[i + 1]) ? 1 : 0;
        ++i;
    }
    return kana >= enoughKana && gbkPlausibility(bytes) < 0;
}

void decodeLegacyName(const LegacyDecoder& decoder, Bytes bytes, std::u16string& text) {
    const auto end = std::find(bytes.begin(), bytes.end(), std::uint8_t{0});
    bytes = bytes.first(static_cast<std::size_t>(end - bytes.begin()));
    if (std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte < 0x80; })) {
        text.assign(bytes.begin(), bytes.end());
        return;
    }
    if (decodeGuessed(decoder, bytes, text))
        return;
    if (bytes.size() > 1 && decodeGuessed(decoder, bytes.first(bytes.size() - 1), text))
        return;
    decoder.decodeLossy(bytes, text);
}

} // namespace _qv_commonclass::psd
