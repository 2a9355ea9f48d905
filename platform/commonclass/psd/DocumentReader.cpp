// DocumentReader: header, the sections that are skipped, the layer list wherever it stands.
#include "DocumentReader.h"
#include "LayerRecord.h"
#include <algorithm>
#include <cstdlib>

namespace _qv_commonclass::psd {

namespace {

constexpr std::uint32_t kDocumentSignature = fourLetters("8BPS");
constexpr std::size_t kHeaderBytes = 26;
constexpr std::uint16_t kVersionPsd = 1;
constexpr std::uint16_t kVersionPsb = 2;
constexpr std::uint16_t kMaxChannels = 56;
constexpr std::uint32_t kMaxSidePsdPx = 30000;
constexpr std::uint32_t kMaxSidePsbPx = 300000;
constexpr std::uint16_t kHighestColourMode = 9;
// The merged picture that ends every document begins with its compression.
constexpr std::uint64_t kCompressionBytes = 2;

bool isDepth(std::uint16_t bits) noexcept {
    return bits == 1 || bits == 8 || bits == 16 || bits == 32;
}

// The blocks in which documents of more than 8 bits a channel keep their layers.
bool isLayerBlock(std::uint32_t key) noexcept {
    return key == fourLetters("Layr") || key == fourLetters("Lr16") || key == fourLetters("Lr32");
}

} // namespace

ReadResult DocumentReader::read() {
    if (!readHeader())
        return ReadResult::NotPhotoshop;
    ByteCursor layers;
    if (!enterLayerSection(layers) || m_file.left() < kCompressionBytes)
        return ReadResult::Damaged;
    return readLayerSection(layers);
}

bool DocumentReader::readHeader() noexcept {
    const std::uint8_t* header = m_file.take(kHeaderBytes);
    if (header == nullptr || ByteCursor::u32Of(header) != kDocumentSignature)
        return false;
    const std::uint16_t version = ByteCursor::u16Of(header + 4);
    const std::uint16_t channels = ByteCursor::u16Of(header + 12);
    const std::uint32_t heightPx = ByteCursor::u32Of(header + 14);
    const std::uint32_t widthPx = ByteCursor::u32Of(header + 18);
    if (version != kVersionPsd && version != kVersionPsb)
        return false;
    m_width = version == kVersionPsb ? LengthWidth::Bits64 : LengthWidth::Bits32;
    const std::uint32_t maxSidePx = version == kVersionPsb ? kMaxSidePsbPx : kMaxSidePsdPx;
    return channels >= 1 && channels <= kMaxChannels && heightPx >= 1 && heightPx <= maxSidePx &&
           widthPx >= 1 && widthPx <= maxSidePx && isDepth(ByteCursor::u16Of(header + 22)) &&
           ByteCursor::u16Of(header + 24) <= kHighestColourMode;
}

bool DocumentReader::readLength(ByteCursor& from, std::uint64_t& length) noexcept {
    if (m_width == LengthWidth::Bits64)
        return from.readU64(length);
    std::uint32_t shortLength = 0;
    if (!from.readU32(shortLength))
        return false;
    length = shortLength;
    return true;
}

bool DocumentReader::enterLayerSection(ByteCursor& section) noexcept {
    std::uint32_t colourModeBytes = 0;
    std::uint32_t resourceBytes = 0;
    std::uint64_t layerBytes = 0;
    return m_file.readU32(colourModeBytes) && m_file.skip(colourModeBytes) && m_file.readU32(resourceBytes) &&
           m_file.skip(resourceBytes) && readLength(m_file, layerBytes) && m_file.enter(layerBytes, section);
}

ReadResult DocumentReader::readLayerSection(ByteCursor section) {
    if (section.left() == 0)
        return ReadResult::Done; // a flat document
    std::uint64_t infoBytes = 0;
    ByteCursor info;
    if (!readLength(section, infoBytes) || !section.enter(infoBytes, info))
        return ReadResult::Damaged;
    if (info.left() > 0) {
        const ReadResult result = readLayerInfo(info);
        if (result != ReadResult::Done || m_recordCount > 0)
            return result;
    }
    return readLayerBlocks(section);
}

ReadResult DocumentReader::readLayerBlocks(ByteCursor section) {
    if (!skipGlobalMask(section))
        return ReadResult::Damaged;
    TaggedBlocks blocks(section, m_width, m_blockBudget);
    for (TaggedBlock block; blocks.next(block);) {
        if (!isLayerBlock(block.key) || block.body.left() == 0)
            continue;
        const ReadResult result = readLayerInfo(block.body);
        if (result != ReadResult::Done || m_recordCount > 0)
            return result;
    }
    return m_blockBudget > 0 ? ReadResult::Done : ReadResult::TooLarge;
}

// Some writers leave the global mask out altogether, its length field included, and go on with the first
// block.
bool DocumentReader::skipGlobalMask(ByteCursor& section) noexcept {
    constexpr std::size_t lengthBytes = 4;
    if (section.left() < lengthBytes)
        return true;
    const std::uint8_t* bytes = section.peek(lengthBytes);
    if (bytes == nullptr)
        return false;
    if (TaggedBlocks::isSignature(bytes))
        return true;
    std::uint32_t maskBytes = 0;
    return section.readU32(maskBytes) && section.skip(maskBytes);
}

ReadResult DocumentReader::readLayerInfo(ByteCursor info) {
    std::uint16_t storedCount = 0;
    if (!info.readU16(storedCount))
        return ReadResult::Damaged;
    // Negative means the first alpha channel holds the merged transparency; the number of layers is the same.
    m_recordCount =
        static_cast<std::uint32_t>(std::abs(static_cast<int>(static_cast<std::int16_t>(storedCount))));
    if (m_recordCount * LayerRecord::kMinBytes > info.left())
        return ReadResult::Damaged;
    m_sink.expect(m_recordCount);
    LayerRecord record(m_width, m_decoder, m_blockBudget);
    for (std::uint32_t i = 0; i < m_recordCount; ++i) {
        if (!record.read(info))
            return ReadResult::Damaged;
        if (m_blockBudget == 0)
            return ReadResult::TooLarge;
        if (record.kind() == LayerKind::GroupMark)
            continue;
        if (record.name().size() > m_nameUnitsLeft)
            return ReadResult::TooLarge;
        m_nameUnitsLeft -= record.name().size();
        m_sink.append(record.name());
    }
    return ReadResult::Done;
}

} // namespace _qv_commonclass::psd
