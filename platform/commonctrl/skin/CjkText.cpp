#include "CjkText.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace _qv_commonctrl {

namespace {

bool IsCjk(char32_t c) {
    struct Block {
        char32_t first, last;
    };
    static constexpr Block kBlocks[] = {
        {0x1100, 0x11FF},   // Hangul letters
        {0x2E80, 0x303F},   // radicals, punctuation
        {0x3040, 0x33FF},   // kana, bopomofo, compatibility forms
        {0x3400, 0x9FFF},   // ideographs
        {0xA960, 0xA97F},   // more Hangul letters
        {0xAC00, 0xD7FF},   // Hangul syllables
        {0xF900, 0xFAFF},   // compatibility ideographs
        {0xFE30, 0xFE4F},   // vertical forms
        {0xFF00, 0xFFEF},   // full and half width forms
        {0x20000, 0x3FFFF}, // further ideographs
    };
    return std::any_of(std::begin(kBlocks), std::end(kBlocks),
                       [c](const Block& block) { return c >= block.first && c <= block.last; });
}

} // namespace

bool HasCjkCharacter(const wchar_t* text) {
    for (; text && *text; ++text) {
        char32_t c = *text;
        if (IS_SURROGATE_PAIR(text[0], text[1]))
            c = 0x10000 + ((static_cast<char32_t>(text[0]) - 0xD800) << 10) + (text[1] - 0xDC00);
        if (IsCjk(c))
            return true;
    }
    return false;
}

} // namespace _qv_commonctrl
