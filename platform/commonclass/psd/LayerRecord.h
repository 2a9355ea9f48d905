// LayerRecord: one record of the layer section.
#pragma once

#include "LegacyDecoder.h"
#include "TaggedBlocks.h"
#include <array>

namespace _qv_commonclass::psd {

// What a record in the layer section stands for.
enum class LayerKind { Layer, GroupMark };

// One record of the layer section, as far as its name needs it. An object is used for all records in turn and
// so keeps its text's memory.
class LayerRecord {
  public:
    // What a record takes at the least: bounds, channel count, blend mode and lengths.
    static constexpr std::uint64_t kMinBytes = 34;

    LayerRecord(LengthWidth width, const LegacyDecoder& decoder, std::uint32_t& blockBudget) noexcept
        : m_width(width), m_decoder(decoder), m_blockBudget(blockBudget) {}

    // Reads the record at the cursor and moves past it. False when it does not fit its section or is no
    // record.
    bool read(ByteCursor& section);

    LayerKind kind() const noexcept { return m_kind; }
    // At most kMaxNameUnits.
    const std::u16string& name() const noexcept { return m_name; }

  private:
    bool readExtra(ByteCursor& extra);
    bool readLegacyBytes(ByteCursor& extra) noexcept;
    void readUnicodeName(ByteCursor& body);
    void readSectionKind(ByteCursor& body) noexcept;

    LengthWidth m_width;
    const LegacyDecoder& m_decoder;
    std::uint32_t& m_blockBudget;
    LayerKind m_kind = LayerKind::Layer;
    std::u16string m_name;
    std::span<const std::uint8_t> m_legacy; // in the window's bytes, or in the copy
    std::array<std::uint8_t, 255> m_legacyCopy{};
};

} // namespace _qv_commonclass::psd
