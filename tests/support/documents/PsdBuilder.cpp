#include "PsdBuilder.h"
#include <algorithm>

namespace psdtest {

namespace {

constexpr const char* kWideKeys[] = {"LMsk", "Lr16", "Lr32", "Layr", "Mt16", "Mt32", "Mtrn",
                                     "Alph", "FMsk", "lnk2", "FEid", "FXid", "PxSD"};

// Writes one document. Lengths that are known only afterwards are patched in by name.
class Builder {
  public:
    explicit Builder(const Document& document) : m_document(document) {}

    PsdImage build() {
        header();
        if (!m_document.hasLayerSection) {
            m_image.number(0, wide(), "section");
        } else {
            const std::size_t begin = open("section");
            layerInfoStretch();
            restOfSection();
            close("section", begin);
        }
        mergedPicture();
        return m_image;
    }

  private:
    int wide() const { return m_document.isPsb ? 8 : 4; }

    std::size_t open(const std::string& name) {
        m_image.number(0, wide(), name);
        return m_image.bytes.size();
    }
    void close(const std::string& name, std::size_t begin) {
        m_image.patch(name, m_image.bytes.size() - begin);
    }
    void sized(const Bytes& data, const std::string& name) {
        m_image.number(data.size(), 4, name);
        m_image.append(data);
    }

    void header() {
        m_image.number(0x38425053, 4, "signature");
        m_image.number(m_document.isPsb ? 2 : 1, 2, "version");
        m_image.zeros(6);
        m_image.number(m_document.channels, 2, "channels");
        m_image.number(m_document.heightPx, 4, "height");
        m_image.number(m_document.widthPx, 4, "width");
        m_image.number(m_document.depthBits, 2, "depth");
        m_image.number(m_document.colourMode, 2, "mode");
        sized(m_document.colourModeData, "colourMode");
        sized(m_document.resources, "resources");
    }

    void mergedPicture() {
        m_image.number(0, 2, "compression");
        m_image.zeros(std::size_t{m_document.heightPx} * m_document.widthPx * m_document.channels *
                      std::max(1, m_document.depthBits / 8));
    }

    void layerInfoStretch() {
        const std::size_t begin = open("info");
        if (m_document.placement == Placement::LayerInfo)
            layerInfo();
        if ((m_image.bytes.size() - begin) % 2 != 0)
            m_image.zeros(1);
        close("info", begin);
    }

    void layerInfo() {
        const auto count = static_cast<std::int64_t>(recordCount(m_document));
        m_image.number(static_cast<std::uint64_t>(m_document.negativeCount ? -count : count), 2, "count");
        std::size_t index = 0;
        for (const Layer& each : m_document.layers) {
            records(each, "layer" + std::to_string(index));
            index += static_cast<std::size_t>(each.times);
        }
        m_image.number(0, 0, "recordsEnd");
        for (const Layer& each : m_document.layers)
            m_image.zeros(m_document.channelDataBytes * static_cast<std::size_t>(each.channels) *
                          static_cast<std::size_t>(each.times));
    }

    // Tens of thousands of records are copies of one: the heap's own checks look at every block at each call.
    void records(const Layer& each, const std::string& name) {
        const auto begin = static_cast<std::ptrdiff_t>(m_image.bytes.size());
        record(each, name);
        const Bytes one(m_image.bytes.begin() + begin, m_image.bytes.end());
        for (int i = 1; i < each.times; ++i)
            m_image.append(one);
    }

    void record(const Layer& each, const std::string& name) {
        m_image.zeros(8); // top and left
        m_image.number(each.heightPx, 4);
        m_image.number(each.widthPx, 4);
        m_image.number(static_cast<std::uint64_t>(each.channels), 2, name + ".channels");
        for (int i = 0; i < each.channels; ++i) {
            m_image.number(static_cast<std::uint64_t>(i), 2);
            m_image.number(m_document.channelDataBytes, wide(),
                           name + ".channel" + std::to_string(i) + ".length");
        }
        m_image.number(0x3842494D, 4, name + ".blendSignature");
        m_image.text("norm");
        m_image.number(0xFF000800, 4); // opacity, clipping, flags, filler
        m_image.number(0, 4, name + ".extra");
        const std::size_t begin = m_image.bytes.size();
        if (!each.bare)
            extra(each, name);
        close(name + ".extra", begin);
    }

    void extra(const Layer& each, const std::string& name) {
        sized(each.mask, name + ".mask");
        sized(each.ranges, name + ".ranges");
        m_image.number(each.legacyName.size(), 1, name + ".legacyLength");
        m_image.text(each.legacyName);
        while ((m_image.bytes.size() - m_image.offsetOf(name + ".legacyLength")) % 4 != 0)
            m_image.zeros(1);
        for (const Block& block : each.blocksBefore)
            tagged(block, name);
        if (each.unicodeName)
            tagged(unicodeNameBlock(*each.unicodeName), name);
        for (const Block& block : each.blocksAfter)
            tagged(block, name);
    }

    void tagged(const Block& block, const std::string& owner) {
        m_image.text(block.signature);
        m_image.text(block.key);
        const bool isWideKey =
            std::find(std::begin(kWideKeys), std::end(kWideKeys), block.key) != std::end(kWideKeys);
        const bool isWide = m_document.isPsb && (isWideKey || block.signature == "8B64");
        m_image.number(block.data.size(), isWide ? 8 : 4, owner + "." + block.key + ".length");
        const std::size_t begin = m_image.bytes.size();
        m_image.append(block.data);
        if (block.key == "luni" && block.data.size() >= 4)
            nameCount(begin, owner);
        while ((m_image.bytes.size() - begin) % static_cast<std::size_t>(block.paddingBytes) != 0)
            m_image.zeros(1);
    }

    // The count is part of the block's data; it is written once more to remember its place.
    void nameCount(std::size_t begin, const std::string& owner) {
        const Bytes data(m_image.bytes.begin() + static_cast<std::ptrdiff_t>(begin) + 4, m_image.bytes.end());
        std::uint64_t count = 0;
        for (std::size_t i = 0; i < 4; ++i)
            count = count << 8 | m_image.bytes[begin + i];
        m_image.bytes.resize(begin);
        m_image.number(count, 4, owner + ".luni.count");
        m_image.append(data);
    }

    void restOfSection() {
        if (m_document.globalMask)
            sized(*m_document.globalMask, "globalMask");
        for (const Block& block : m_document.globalBlocks)
            tagged(block, "global");
        if (m_document.placement != Placement::LayerInfo)
            layerBlock();
        for (const Block& block : m_document.globalBlocksAfter)
            tagged(block, "global");
    }

    void layerBlock() {
        m_image.text("8BIM");
        m_image.text(m_document.placement == Placement::Lr16   ? "Lr16"
                     : m_document.placement == Placement::Lr32 ? "Lr32"
                                                               : "Layr");
        const std::size_t begin = open("layerBlock.length");
        layerInfo();
        close("layerBlock.length", begin);
        while ((m_image.bytes.size() - begin) % 4 != 0)
            m_image.zeros(1);
    }

    const Document& m_document;
    PsdImage m_image;
};

} // namespace

Block unicodeNameBlock(std::u16string_view name) {
    PsdImage data;
    data.number(name.size(), 4);
    for (const char16_t unit : name)
        data.number(unit, 2);
    return Block{"luni", data.bytes};
}

Block sectionBlock(std::uint32_t type, const std::string& key) {
    PsdImage data;
    data.number(type, 4);
    return Block{key, data.bytes};
}

Layer layer(std::u16string_view name) {
    Layer made;
    made.legacyName = "legacy";
    made.unicodeName = name;
    return made;
}

Layer legacyLayer(std::string_view bytes) {
    Layer made;
    made.legacyName = bytes;
    return made;
}

Layer groupHeader(std::u16string_view name) {
    Layer made = layer(name);
    made.blocksAfter.push_back(sectionBlock(1));
    return made;
}

Layer groupEnd() {
    Layer made = layer(u"</Layer group>");
    made.blocksBefore.push_back(sectionBlock(3));
    return made;
}

PsdImage build(const Document& document) {
    return Builder(document).build();
}

std::size_t recordCount(const Document& document) {
    std::size_t count = 0;
    for (const Layer& each : document.layers)
        count += static_cast<std::size_t>(each.times);
    return count;
}

} // namespace psdtest
