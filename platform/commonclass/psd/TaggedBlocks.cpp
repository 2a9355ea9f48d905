// TaggedBlocks: which keys have a long length.
#include "TaggedBlocks.h"
#include <algorithm>
#include <iterator>

namespace _qv_commonclass::psd {

namespace {

// The keys whose length takes eight bytes in a .psb document.
constexpr std::uint32_t kWideKeys[] = {
    fourLetters("LMsk"), fourLetters("Lr16"), fourLetters("Lr32"), fourLetters("Layr"), fourLetters("Mt16"),
    fourLetters("Mt32"), fourLetters("Mtrn"), fourLetters("Alph"), fourLetters("FMsk"), fourLetters("lnk2"),
    fourLetters("FEid"), fourLetters("FXid"), fourLetters("PxSD"),
};

} // namespace

bool TaggedBlocks::hasWideLength(std::uint32_t signature, std::uint32_t key) noexcept {
    return signature == kWideSignature ||
           std::find(std::begin(kWideKeys), std::end(kWideKeys), key) != std::end(kWideKeys);
}

} // namespace _qv_commonclass::psd
