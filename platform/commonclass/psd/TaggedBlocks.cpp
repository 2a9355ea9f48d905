#include "TaggedBlocks.h"
#include <algorithm>

namespace _qv_commonclass::psd {

namespace {

constexpr std::uint32_t kSignature = fourLetters("8BIM");
constexpr std::uint32_t kWideSignature = fourLetters("8B64");
// A block's head: signature, key, length of four or, rarely, eight bytes.
constexpr std::size_t kKeyOffset = 4;
constexpr std::size_t kLengthOffset = 8;
constexpr std::size_t kShortHeadBytes = 12;
constexpr std::size_t kMaxPaddingBytes = 3;

// The keys whose length takes eight bytes in a .psb document.
constexpr std::uint32_t kWideKeys[] = {
    fourLetters("LMsk"), fourLetters("Lr16"), fourLetters("Lr32"), fourLetters("Layr"), fourLetters("Mt16"),
    fourLetters("Mt32"), fourLetters("Mtrn"), fourLetters("Alph"), fourLetters("FMsk"), fourLetters("lnk2"),
    fourLetters("FEid"), fourLetters("FXid"), fourLetters("PxSD"),
};

} // namespace

bool TaggedBlocks::isSignature(const std::uint8_t* bytes) noexcept {
    const std::uint32_t signature = ByteCursor::u32Of(bytes);
    return signature == kSignature || signature == kWideSignature;
}

// The next block's head, behind up to three bytes of padding; null when there is none.
const std::uint8_t* TaggedBlocks::nextHead() noexcept {
    const std::uint64_t left = m_rest.left();
    if (left < kShortHeadBytes)
        return nullptr;
    const std::size_t reach =
        static_cast<std::size_t>(std::min<std::uint64_t>(left, kShortHeadBytes + kMaxPaddingBytes));
    const std::uint8_t* bytes = m_rest.peek(reach);
    if (bytes == nullptr)
        return nullptr;
    for (std::size_t padding = 0; padding <= reach - kShortHeadBytes; ++padding) {
        if (isSignature(bytes + padding)) {
            m_rest.skip(padding);
            return bytes + padding;
        }
    }
    return nullptr;
}

bool TaggedBlocks::hasWideLength(std::uint32_t signature, std::uint32_t key) const noexcept {
    if (m_width == LengthWidth::Bits32)
        return false;
    return signature == kWideSignature ||
           std::find(std::begin(kWideKeys), std::end(kWideKeys), key) != std::end(kWideKeys);
}

bool TaggedBlocks::next(TaggedBlock& block) noexcept {
    if (m_budget == 0)
        return false;
    const std::uint8_t* head = nextHead();
    if (head == nullptr)
        return false;
    --m_budget;
    const std::uint32_t signature = ByteCursor::u32Of(head);
    block.key = ByteCursor::u32Of(head + kKeyOffset);
    if (!hasWideLength(signature, block.key)) {
        const std::uint32_t length = ByteCursor::u32Of(head + kLengthOffset);
        return m_rest.skip(kShortHeadBytes) && m_rest.enter(length, block.body);
    }
    std::uint64_t length = 0;
    return m_rest.skip(kLengthOffset) && m_rest.readU64(length) && m_rest.enter(length, block.body);
}

} // namespace _qv_commonclass::psd
