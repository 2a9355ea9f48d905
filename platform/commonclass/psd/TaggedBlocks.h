#pragma once

#include "ByteCursor.h"

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
    TaggedBlocks(ByteCursor stretch, LengthWidth width, std::uint32_t& budget) noexcept
        : m_rest(stretch), m_width(width), m_budget(budget) {}

    // The next block; false at the end of the walk.
    bool next(TaggedBlock& block) noexcept;

    // Whether bytes begin with a block's signature.
    static bool isSignature(const std::uint8_t* bytes) noexcept;

  private:
    const std::uint8_t* nextHead() noexcept;
    bool hasWideLength(std::uint32_t signature, std::uint32_t key) const noexcept;

    ByteCursor m_rest;
    LengthWidth m_width;
    std::uint32_t& m_budget;
};

} // namespace _qv_commonclass::psd
