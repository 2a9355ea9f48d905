#include "SkinParse.h"

#include <charconv>

namespace _qv_commonctrl {

namespace {

// Cuts the words of one line: separated by blanks, a word in double quotes may hold blanks.
class LineReader {
  public:
    explicit LineReader(std::string_view line) : m_rest(line) {}

    bool AtEnd() {
        SkipBlanks();
        return m_rest.empty();
    }

    std::string_view Word() {
        SkipBlanks();
        std::size_t end = 0;
        while (end < m_rest.size() && !IsBlank(m_rest[end]))
            ++end;
        return Take(end, end);
    }

    // What a value is for is told for the reader of the file. FALSE when there is no word.
    bool Role() { return !Word().empty(); }

    bool Number(int least, int most, int& value) {
        const std::string_view word = Word();
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
        return error == std::errc() && end == word.data() + word.size() && value >= least && value <= most;
    }

    bool Color(uint32_t& rgb) {
        constexpr std::size_t kLength = 7; // #RRGGBB
        const std::string_view word = Word();
        if (word.size() != kLength || word[0] != '#')
            return false;
        const auto [end, error] = std::from_chars(word.data() + 1, word.data() + kLength, rgb, 16);
        return error == std::errc() && end == word.data() + kLength;
    }

    bool Quoted(std::string& text) {
        SkipBlanks();
        if (m_rest.empty() || m_rest[0] != '"')
            return false;
        const std::size_t end = m_rest.find('"', 1);
        if (end == std::string_view::npos)
            return false;
        text = Take(end, end + 1).substr(1);
        return true;
    }

  private:
    static bool IsBlank(char c) { return c == ' ' || c == '\t'; }

    void SkipBlanks() {
        while (!m_rest.empty() && IsBlank(m_rest[0]))
            m_rest.remove_prefix(1);
    }

    std::string_view Take(std::size_t length, std::size_t consumed) {
        const std::string_view word = m_rest.substr(0, length);
        m_rest.remove_prefix(consumed);
        return word;
    }

    std::string_view m_rest;
};

// Each of these reads what follows the key word and returns null, or what is wrong.
const char* ReadColor(LineReader& line, SkinData& data) {
    int index = 0;
    uint32_t rgb = 0;
    if (!line.Number(0, kMaxSkinIndex, index))
        return "no colour index";
    if (!line.Role() || !line.Color(rgb))
        return "no colour of the form #RRGGBB";
    data.colors[index] = rgb;
    return nullptr;
}

const char* ReadPen(LineReader& line, SkinData& data) {
    int index = 0;
    SkinPen pen;
    if (!line.Number(0, kMaxSkinIndex, index))
        return "no pen index";
    line.Role();
    if (!line.Number(0, kMaxSkinPenWidthPx, pen.widthPx))
        return "no pen width";
    if (!line.Color(pen.rgb))
        return "no colour of the form #RRGGBB";
    data.pens[index] = pen;
    return nullptr;
}

const char* ReadBrush(LineReader& line, SkinData& data) {
    int index = 0;
    int color = 0;
    if (!line.Number(0, kMaxSkinIndex, index))
        return "no brush index";
    line.Role();
    if (!line.Number(0, kMaxSkinIndex, color))
        return "no colour index";
    data.brushes[index] = color;
    return nullptr;
}

const char* ReadFont(LineReader& line, SkinData& data) {
    constexpr int kMaxWeight = 1000;
    int index = 0;
    SkinFont font;
    if (!line.Number(0, kMaxSkinIndex, index))
        return "no font index";
    line.Role();
    const std::string script(line.Word());
    if (script.empty())
        return "no script";
    if (!line.Number(1, kMaxSkinFontHeightPx, font.heightPx))
        return "no font height";
    if (!line.Number(1, kMaxWeight, font.weight))
        return "no font weight";
    std::string face;
    while (font.faces.size() < kMaxSkinFaces && line.Quoted(face)) {
        if (!face.empty() && face.size() <= kMaxSkinFaceBytes)
            font.faces.push_back(face);
    }
    if (font.faces.empty())
        return "no face in double quotes";
    data.fonts[{index, script}] = font;
    return nullptr;
}

// The skin's name, too, is for the reader of the file.
const char* ReadName(LineReader& line) {
    std::string name;
    return line.Quoted(name) ? nullptr : "no name in double quotes";
}

const char* ReadLine(std::string_view text, SkinData& data) {
    LineReader line(text);
    if (line.AtEnd() || text.front() == '#')
        return nullptr;
    const std::string_view keyWord = line.Word();
    if (keyWord == "color")
        return ReadColor(line, data);
    if (keyWord == "font")
        return ReadFont(line, data);
    if (keyWord == "pen")
        return ReadPen(line, data);
    if (keyWord == "brush")
        return ReadBrush(line, data);
    if (keyWord == "name")
        return ReadName(line);
    return "unknown key word";
}

} // namespace

SkinData ParseSkin(std::string_view text, std::vector<SkinFault>& faults) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    SkinData data;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const char* fault = ReadLine(line, data);
        if (fault && faults.size() < kMaxSkinFaults)
            faults.push_back({number, fault});
    }
    return data;
}

} // namespace _qv_commonctrl
