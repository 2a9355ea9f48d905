// LayerRecord: what a record is, and its name by the better of its two sources.
#include "LayerRecord.h"
#include "LayerNames.h"
#include "LegacyName.h"
#include <algorithm>
#include <cstring>

namespace _qv_commonclass::psd {

namespace {

// A record begins with the layer's bounds and the number of its channels; behind those stand the blend mode
// with its signature, four bytes of flags, and the length of the rest.
constexpr std::size_t kBoundsBytes = 16;
constexpr std::size_t kHeadBytes = kBoundsBytes + 2;
constexpr std::uint64_t kChannelBytes = 6;      // id and 32-bit length
constexpr std::uint64_t kWideChannelBytes = 10; // id and 64-bit length
constexpr std::uint16_t kMaxChannels = 64;      // 56 of the document, transparency and masks
constexpr std::uint32_t kBlendSignature = fourLetters("8BIM");
constexpr std::size_t kExtraLengthOffset = 12;
constexpr std::size_t kBlendBytes = kExtraLengthOffset + 4;

constexpr std::uint32_t kUnicodeNameKey = fourLetters("luni");
constexpr std::uint32_t kSectionKey = fourLetters("lsct");
constexpr std::uint32_t kNestedSectionKey = fourLetters("lsdk");

enum SectionType : std::uint32_t { kOpenGroup = 1, kClosedGroup = 2, kGroupEnd = 3 };

constexpr char16_t kReplacement = 0xFFFD;

bool isHighSurrogate(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xD800;
}

bool isLowSurrogate(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xDC00;
}

// Halves of surrogate pairs without their other half would make the name unusable for every conversion after
// this.
void replaceLoneSurrogates(std::u16string& text) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
            ++i;
        else if (isHighSurrogate(text[i]) || isLowSurrogate(text[i]))
            text[i] = kReplacement;
    }
}

bool skipStretch(ByteCursor& cursor) noexcept {
    std::uint32_t length = 0;
    return cursor.readU32(length) && cursor.skip(length);
}

} // namespace

bool LayerRecord::read(ByteCursor& section) {
    m_kind = LayerKind::Layer;
    m_name.clear();
    m_legacy = {};

    const std::uint8_t* head = section.take(kHeadBytes);
    if (head == nullptr)
        return false;
    const std::uint16_t channels = ByteCursor::u16Of(head + kBoundsBytes);
    if (channels > kMaxChannels ||
        !section.skip(channels * (m_width == LengthWidth::Bits64 ? kWideChannelBytes : kChannelBytes)))
        return false;
    const std::uint8_t* blend = section.take(kBlendBytes);
    if (blend == nullptr || ByteCursor::u32Of(blend) != kBlendSignature)
        return false;
    ByteCursor extra;
    return section.enter(ByteCursor::u32Of(blend + kExtraLengthOffset), extra) && readExtra(extra);
}

bool LayerRecord::readExtra(ByteCursor& extra) {
    if (extra.left() == 0)
        return true; // the barest record: no mask, no name
    extra.hold();
    const bool hasMask = skipStretch(extra);
    const bool hasBlendingRanges = hasMask && skipStretch(extra);
    if (!hasBlendingRanges || !readLegacyBytes(extra))
        return false;

    bool hasUnicodeName = false;
    TaggedBlocks blocks(extra, m_width, m_blockBudget);
    for (TaggedBlock block; blocks.next(block);) {
        if (block.key == kUnicodeNameKey && !hasUnicodeName) {
            readUnicodeName(block.body);
            hasUnicodeName = !m_name.empty();
        } else if (block.key == kSectionKey || block.key == kNestedSectionKey) {
            readSectionKind(block.body);
        }
    }
    if (!hasUnicodeName)
        decodeLegacyName(m_decoder, m_legacy, m_name);
    return true;
}

// The bytes are copied when the blocks that follow may move the window on: only they tell whether the name is
// needed.
bool LayerRecord::readLegacyBytes(ByteCursor& extra) noexcept {
    std::uint8_t length = 0;
    if (extra.left() == 0)
        return true;
    if (!extra.readU8(length))
        return false;
    const std::uint8_t* bytes = extra.take(length);
    if (bytes == nullptr)
        return false;
    if (!extra.isHeld()) {
        std::memcpy(m_legacyCopy.data(), bytes, length);
        bytes = m_legacyCopy.data();
    }
    m_legacy = {bytes, length};
    return true;
}

// Leaves the name empty when the block does not hold what its count promises.
void LayerRecord::readUnicodeName(ByteCursor& body) {
    std::uint32_t units = 0;
    if (!body.readU32(units) || units > body.left() / sizeof(char16_t))
        return;
    const std::size_t wanted = std::min<std::size_t>(units, kMaxNameUnits);
    const std::uint8_t* bytes = body.take(wanted * sizeof(char16_t));
    if (bytes == nullptr)
        return;
    m_name.resize(wanted);
    char16_t* const text = m_name.data();
    bool hasSurrogates = false;
    bool hasNul = false;
    for (std::size_t i = 0; i < wanted; ++i) {
        const char16_t unit = ByteCursor::u16Of(bytes + i * sizeof(char16_t));
        text[i] = unit;
        hasSurrogates |= (unit & 0xF800) == 0xD800;
        hasNul |= unit == 0;
    }
    if (hasNul)
        m_name.resize(m_name.find(u'\0'));
    if (!hasSurrogates)
        return;
    if (wanted < units && !m_name.empty() && isHighSurrogate(m_name.back()))
        m_name.pop_back(); // the cut went through a pair
    replaceLoneSurrogates(m_name);
}

void LayerRecord::readSectionKind(ByteCursor& body) noexcept {
    std::uint32_t type = 0;
    if (body.readU32(type) && (type == kOpenGroup || type == kClosedGroup || type == kGroupEnd))
        m_kind = LayerKind::GroupMark;
}

} // namespace _qv_commonclass::psd
