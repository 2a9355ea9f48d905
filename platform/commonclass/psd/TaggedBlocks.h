// TaggedBlocks: a walk along blocks of the form signature, key, length, data.
#pragma once

#include "ByteCursor.h"
#include <algorithm>

namespace _qv_commonclass::psd {

// Four letters as the number they are stored as.
constexpr std::uint32_t fourLetters(const char (&text)[5]) noexcept {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(text[i]);
    return value;
}

// Documents come in two widths: .psd with 32-bit and .psb with 64-bit lengths of the large stretches.
enum class LengthWidth { Bits32, Bits64 };

struct TaggedBlock {
    std::uint32_t key = 0;
    ByteCursor body;
};

// Walks blocks of the form signature, key, length, data. Writers pad the data to one, two or four bytes and
// do not say to how many, so the next signature is looked for in the four places where it can stand. The walk
// ends at the first bytes that are no block, or at a block longer than what is left.
class TaggedBlocks {
  public:
    // All blocks of a document together. A real document stays far below; the limit bounds the work that a
    // made-up one can ask for.
    static constexpr std::uint32_t kMaxBlocksPerDocument = 1u << 20;

    // budget: blocks that may still be walked in this document, shared by all its walks.
    TaggedBlocks(const ByteCursor& stretch, LengthWidth width, std::uint32_t& budget) noexcept
        : m_rest(stretch), m_width(width), m_budget(budget) {}

    // The next block; false at the end of the walk. Nothing called from here knows the walk itself, so that
    // its position stays in a register: documents hold ten blocks and more for each layer.
    bool next(TaggedBlock& block) noexcept {
        if (m_budget == 0)
            return false;
        const std::uint8_t* head = m_rest.peek(kShortHeadBytes);
        if (head == nullptr)
            return false;
        if (!isSignature(head)) {
            head = headBehindPadding();
            if (head == nullptr)
                return false;
        }
        --m_budget;
        block.key = ByteCursor::u32Of(head + kKeyOffset);
        std::uint64_t length = ByteCursor::u32Of(head + kLengthOffset);
        if (m_width == LengthWidth::Bits32 || !hasWideLength(ByteCursor::u32Of(head), block.key))
            return m_rest.skip(kShortHeadBytes) && m_rest.enter(length, block.body);
        return m_rest.skip(kLengthOffset) && m_rest.readU64(length) && m_rest.enter(length, block.body);
    }

    // Whether bytes begin with a block's signature.
    static bool isSignature(const std::uint8_t* bytes) noexcept {
        const std::uint32_t signature = ByteCursor::u32Of(bytes);
        return signature == kSignature || signature == kWideSignature;
    }

  private:
    static constexpr std::uint32_t kSignature = fourLetters("8BIM");
    static constexpr std::uint32_t kWideSignature = fourLetters("8B64");
    // A block's head: signature, key, length of four or, rarely, eight bytes.
    static constexpr std::size_t kKeyOffset = 4;
    static constexpr std::size_t kLengthOffset = 8;
    static constexpr std::size_t kShortHeadBytes = 12;

    static constexpr std::size_t kMaxPaddingBytes = 3;

    // The next head, behind one to three bytes of padding; null when there is none.
    const std::uint8_t* headBehindPadding() noexcept {
        const std::uint64_t reach =
            std::min<std::uint64_t>(m_rest.left(), kShortHeadBytes + kMaxPaddingBytes);
        const std::uint8_t* bytes = m_rest.peek(static_cast<std::size_t>(reach));
        for (std::size_t padding = 1; bytes != nullptr && padding + kShortHeadBytes <= reach; ++padding)
            if (isSignature(bytes + padding))
                return m_rest.skip(padding) ? bytes + padding : nullptr;
        return nullptr;
    }
    static bool hasWideLength(std::uint32_t signature, std::uint32_t key) noexcept;

    ByteCursor m_rest;
    LengthWidth m_width;
    std::uint32_t& m_budget;
};

} // namespace _qv_commonclass::psd
