#pragma once

#include "PsdImage.h"
#include <optional>

namespace psdtest {

// One tagged block as it is to be written.
struct Block {
    std::string key;
    Bytes data;
    std::string signature = "8BIM";
    int paddingBytes = 2;
};

Block unicodeNameBlock(std::u16string_view name);
// type: 0 none, 1 open group, 2 closed group, 3 end of a group.
Block sectionBlock(std::uint32_t type, const std::string& key = "lsct");

struct Layer {
    std::string legacyName;
    std::optional<std::u16string> unicodeName;
    std::vector<Block> blocksBefore; // before the Unicode name
    std::vector<Block> blocksAfter;
    std::uint32_t heightPx = 0; // from the document's top left corner
    std::uint32_t widthPx = 0;
    int channels = 1;
    Bytes mask;
    Bytes ranges;
    bool bare = false; // extra data of length 0
    int times = 1;     // so many records alike, one after the other; only the first one's fields get names
};

Layer layer(std::u16string_view name);
Layer legacyLayer(std::string_view bytes);
Layer groupHeader(std::u16string_view name);
Layer groupEnd();

// Where the layers stand.
enum class Placement { LayerInfo, Layr, Lr16, Lr32 };

struct Document {
    bool isPsb = false;
    std::uint16_t channels = 3;
    std::uint32_t heightPx = 1;
    std::uint32_t widthPx = 1;
    std::uint16_t depthBits = 8;
    std::uint16_t colourMode = 3;
    Bytes colourModeData;
    Bytes resources;
    bool hasLayerSection = true;
    Placement placement = Placement::LayerInfo;
    bool negativeCount = false;
    std::vector<Layer> layers;
    std::optional<Bytes> globalMask = Bytes{}; // nothing: not even its length field
    std::vector<Block> globalBlocks;           // before a block with layers
    std::vector<Block> globalBlocksAfter;
    std::size_t channelDataBytes = 2; // of each channel of each layer
};

// Writes the document. Field names: signature, version, channels, height, width, depth, mode, colourMode,
// resources, section, info, count, globalMask, layerBlock.length, and for each layer n: layer<n>.channels,
// layer<n>.channel<i>.length, layer<n>.blendSignature, layer<n>.extra, layer<n>.mask, layer<n>.ranges,
// layer<n>.legacyLength, layer<n>.<key>.length, layer<n>.luni.count; for global blocks global.<key>.length.
// recordsEnd, of no width, is the place behind the last record.
PsdImage build(const Document& document);

// Records in the document: every layer as often as it is repeated.
std::size_t recordCount(const Document& document);

} // namespace psdtest
