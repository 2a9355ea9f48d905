// DocumentReader: from a document's header to its layer records.
#pragma once

#include "LayerNames.h"
#include "TaggedBlocks.h"

namespace _qv_commonclass::psd {

// Walks one document from its header to its layer records. Used once.
class DocumentReader {
  public:
    DocumentReader(ReadWindow& window, const LegacyDecoder& decoder, NameSink& sink) noexcept
        : m_decoder(decoder), m_sink(sink), m_file(window, 0, window.sourceSize()) {}

    ReadResult read();

  private:
    bool readHeader() noexcept;
    bool readLength(ByteCursor& from, std::uint64_t& length) noexcept;
    bool enterLayerSection(ByteCursor& section) noexcept;
    ReadResult readLayerSection(ByteCursor section);
    ReadResult readLayerBlocks(ByteCursor section);
    bool skipGlobalMask(ByteCursor& section) noexcept;
    ReadResult readLayerInfo(ByteCursor info);

    const LegacyDecoder& m_decoder;
    NameSink& m_sink;
    ByteCursor m_file;
    LengthWidth m_width = LengthWidth::Bits32;
    std::uint32_t m_blockBudget = TaggedBlocks::kMaxBlocksPerDocument;
    std::uint32_t m_recordCount = 0;
    std::size_t m_nameUnitsLeft = kMaxNameUnitsTotal;
};

} // namespace _qv_commonclass::psd
