#pragma once

#include "LayerNames.h"
#include "TaggedBlocks.h"

namespace _qv_commonclass::psd {

// Walks one document from its header to its layer records. Used once.
class DocumentReader {
  public:
    DocumentReader(ReadWindow& window, const LegacyDecoder& decoder) noexcept
        : m_decoder(decoder), m_file(window, 0, window.sourceSize()) {}

    ReadResult read(NameList& names);

  private:
    bool readHeader() noexcept;
    bool readLength(ByteCursor& from, std::uint64_t& length) noexcept;
    bool enterLayerSection(ByteCursor& section) noexcept;
    ReadResult readLayerSection(ByteCursor section, NameList& names);
    ReadResult readLayerBlocks(ByteCursor section, NameList& names);
    bool skipGlobalMask(ByteCursor& section) noexcept;
    ReadResult readLayerInfo(ByteCursor info, NameList& names);

    const LegacyDecoder& m_decoder;
    ByteCursor m_file;
    LengthWidth m_width = LengthWidth::Bits32;
    std::uint32_t m_blockBudget = TaggedBlocks::kMaxBlocksPerDocument;
    std::uint32_t m_recordCount = 0;
};

} // namespace _qv_commonclass::psd
