// Feeds the skin parser with any bytes.
#include "skin/SkinParse.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace _qv_commonctrl;
    std::vector<SkinFault> faults;
    const SkinData skin = ParseSkin({reinterpret_cast<const char*>(data), size}, faults);
    for (const auto& [index, rgb] : skin.colors) {
        if (index < 0 || index > kMaxSkinIndex || rgb > 0xFFFFFF)
            std::abort();
    }
    for (const auto& [key, font] : skin.fonts) {
        if (font.faces.empty() || font.heightPx < 1 || font.heightPx > kMaxSkinFontHeightPx)
            std::abort();
    }
    return 0;
}
