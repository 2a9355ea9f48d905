// SkinParse.h: reads a skin's data file. Plain functions over plain values, no window and no file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace _qv_commonctrl {

// A font of one index for one script. Heights are pixels at 96 DPI without the internal leading.
struct SkinFont {
    int heightPx = 0;
    int weight = 0;
    std::vector<std::string> faces; // UTF-8, wanted first
};

struct SkinPen {
    int widthPx = 0; // at 96 DPI
    uint32_t rgb = 0;
};

struct SkinData {
    std::map<int, uint32_t> colors; // index -> 0xRRGGBB
    std::map<int, SkinPen> pens;
    std::map<int, int> brushes;                            // index -> index of its colour
    std::map<std::pair<int, std::string>, SkinFont> fonts; // index and script ("latin", "cjk", "ja" ...)

    bool IsEmpty() const { return colors.empty() && pens.empty() && brushes.empty() && fonts.empty(); }
};

// A line that says nothing usable: its 1-based number and why.
struct SkinFault {
    int line;
    std::string reason;
};

constexpr int kMaxSkinIndex = 65535;
constexpr int kMaxSkinFontHeightPx = 512;
constexpr int kMaxSkinPenWidthPx = 64;
constexpr std::size_t kMaxSkinFaces = 8;
constexpr std::size_t kMaxSkinFaceBytes = 93; // 31 UTF-16 units, which a font record takes, in UTF-8
constexpr std::size_t kMaxSkinFaults = 100;   // a file that is no skin at all is not worth more lines

// Reads the text of a data file (UTF-8, with or without byte order mark, lines ended by LF or CRLF). Lines
// that cannot be read are left out and named in `faults`; everything else counts.
SkinData ParseSkin(std::string_view text, std::vector<SkinFault>& faults);

} // namespace _qv_commonctrl
