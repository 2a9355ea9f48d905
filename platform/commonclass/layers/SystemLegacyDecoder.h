// SystemLegacyDecoder: legacy layer names by the system's code page tables.
#pragma once

#include "psd/LegacyDecoder.h"

namespace _qv_commonclass {

// Decodes with the system's own code page tables.
class SystemLegacyDecoder final : public psd::LegacyDecoder {
  public:
    bool decode(psd::LegacyCodePage codePage, std::span<const std::uint8_t> bytes,
                std::u16string& text) const override;
    bool isSystem(psd::LegacyCodePage codePage) const override;
    void decodeLossy(std::span<const std::uint8_t> bytes, std::u16string& text) const override;
};

} // namespace _qv_commonclass
