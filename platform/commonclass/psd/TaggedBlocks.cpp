#include "TaggedBlocks.h"
#include <algorithm>

namespace _qv_commonclass::psd {

namespace {

constexpr std::uint32_t kSignature = fourLetters("8BIM");
constexpr std::uint32_t kWideSignature = fourLetters("8B64");
constexpr std::size_t kSignatureBytes = 4;
constexpr std::size_t kSignatureAndKeyBytes = 8;
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

bool TaggedBlocks::skipPadding() noexcept {
    const std::uint64_t left = m_rest.left();
    if (left < kSignatureAndKeyBytes)
        return false;
    const std::size_t reach =
        static_cast<std::size_t>(std::min<std::uint64_t>(left, kSignatureAndKeyBytes + kMaxPaddingBytes));
    const std::uint8_t* bytes = m_rest.peek(reach);
    if (bytes == nullptr)
        return false;
    for (std::size_t padding = 0; padding <= reach - kSignatureAndKeyBytes; ++padding)
        if (isSignature(bytes + padding))
            return m_rest.skip(padding);
    return false;
}

bool TaggedBlocks::hasWideLength(std::uint32_t signature, std::uint32_t key) const noexcept {
    if (m_width == LengthWidth::Bits32)
        return false;
    return signature == kWideSignature ||
           std::find(std::begin(kWideKeys), std::end(kWideKeys), key) != std::end(kWideKeys);
}

bool TaggedBlocks::next(TaggedBlock& block) noexcept {
    if (m_budget == 0 || !skipPadding())
        return false;
    --m_budget;
    const std::uint8_t* head = m_rest.take(kSignatureAndKeyBytes);
    if (head == nullptr)
        return false;
    const std::uint32_t signature = ByteCursor::u32Of(head);
    block.key = ByteCursor::u32Of(head + kSignatureBytes);
    std::uint64_t length = 0;
    if (hasWideLength(signature, block.key)) {
        if (!m_rest.readU64(length))
            return false;
    } else {
        std::uint32_t shortLength = 0;
        if (!m_rest.readU32(shortLength))
            return false;
        length = shortLength;
    }
    return m_rest.enter(length, block.body);
}

} // namespace _qv_commonclass::psd
