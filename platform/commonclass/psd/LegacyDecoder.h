// LegacyDecoder: bytes of a code page to UTF-16.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace _qv_commonclass::psd {

enum class LegacyCodePage { System, Gbk, ShiftJis };

// Turns the bytes of a legacy layer name, whose encoding the document does not tell, into UTF-16.
class LegacyDecoder {
  public:
    virtual ~LegacyDecoder() = default;

    // False when the bytes are not wholly valid in that code page (or the code page is not installed); text
    // is then unspecified.
    virtual bool decode(LegacyCodePage codePage, std::span<const std::uint8_t> bytes,
                        std::u16string& text) const = 0;

    // Whether the system's code page is that one.
    virtual bool isSystem(LegacyCodePage codePage) const = 0;

    // The system code page with a replacement character for what is not valid in it.
    virtual void decodeLossy(std::span<const std::uint8_t> bytes, std::u16string& text) const = 0;
};

} // namespace _qv_commonclass::psd
