// Legacy layer names, whose encoding the document does not tell.
#pragma once

#include "LegacyDecoder.h"

namespace _qv_commonclass::psd {

// Decodes a legacy layer name: ASCII as it is; else the system code page; where the bytes are not valid in
// it, GBK or Shift-JIS, whichever alone is valid or, when both are, fits the bytes better; the same once more
// without the last byte, since writers cut names at a fixed length and so through a character; at last the
// system code page with replacement characters. One text is taken from the system code page though valid in
// it: kana on a Chinese system, where nearly every Shift-JIS name is valid and none is readable. The name
// ends at its first NUL.
void decodeLegacyName(const LegacyDecoder& decoder, std::span<const std::uint8_t> bytes,
                      std::u16string& text);

// How well bytes read as running text of that code page: common characters count most, half-width katakana
// against it. Only meaningful in comparison, for bytes valid in both.
int gbkPlausibility(std::span<const std::uint8_t> bytes) noexcept;
int shiftJisPlausibility(std::span<const std::uint8_t> bytes) noexcept;

// Whether bytes can hardly be anything but kana in Shift-JIS: several of them, and nothing between them that
// running Japanese text would not have.
bool readsAsKana(std::span<const std::uint8_t> bytes) noexcept;

} // namespace _qv_commonclass::psd
