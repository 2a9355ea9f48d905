#include "QVSkinFont.h"

#include "dictionary/QVLanguage.h"
#include "QVSkin.h"
#include "QVSkinStore.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr UINT kMaxDpi = 4800;

// The scripts whose font suits the current language, best first; every font has one of the last two.
std::vector<std::string> WantedScripts() {
    if (IsLanguage(L"ja"))
        return {"ja", "cjk", "latin"};
    if (IsLanguage(L"ko"))
        return {"ko", "cjk", "latin"};
    if (IsLanguage(L"zh"))
        return {"cjk", "latin"};
    return {"latin", "cjk"};
}

int CALLBACK NoteFace(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

bool IsFaceInstalled(const std::wstring& face) {
    LOGFONTW wanted = {};
    wanted.lfCharSet = DEFAULT_CHARSET;
    face.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    bool found = false;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &wanted, NoteFace, reinterpret_cast<LPARAM>(&found), 0);
    ReleaseDC(nullptr, screen);
    return found;
}

std::wstring WideFace(const std::string& face) {
    wchar_t wide[LF_FACESIZE] = L"";
    const int units =
        MultiByteToWideChar(CP_UTF8, 0, face.data(), static_cast<int>(face.size()), wide, LF_FACESIZE - 1);
    return std::wstring(wide, static_cast<std::size_t>(units));
}

// The first installed face; the first of all when none is, so that the system finds a substitute.
std::wstring ChooseFace(const std::vector<std::string>& faces) {
    for (const std::string& face : faces) {
        const std::wstring wide = WideFace(face);
        if (!wide.empty() && IsFaceInstalled(wide))
            return wide;
    }
    return faces.empty() ? std::wstring() : WideFace(faces.front());
}

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

SkinFontPool& SkinFontPool::Get() {
    static SkinFontPool pool;
    return pool;
}

CFont* SkinFontPool::Find(int index, UINT dpi) {
    constexpr std::size_t kMostAnswers = 256;
    dpi = dpi == 0 ? USER_DEFAULT_SCREEN_DPI : std::min(dpi, kMaxDpi);
    const State state(SkinStore::Get().Generation(), GetLanguageGeneration());
    if (state != m_state)
        m_answers.clear();
    m_state = state;
    const Request request(index, dpi);
    if (const auto found = m_answers.find(request); found != m_answers.end())
        return found->second;
    if (m_answers.size() >= kMostAnswers)
        m_answers.clear();
    return m_answers[request] = Make(index, dpi);
}

CFont* SkinFontPool::Make(int index, UINT dpi) {
    const std::vector<std::string> scripts = WantedScripts();
    const SkinFont* font = SkinStore::Get().Font(index, scripts);
    if (!font)
        font = SkinStore::Get().Font(QVFONT_UI, scripts);
    if (!font)
        return OfShape({std::wstring(), -QV_ScaleForDpi(12, dpi), FW_NORMAL});
    return OfShape({ChooseFace(font->faces), -QV_ScaleForDpi(font->heightPx, dpi), font->weight});
}

CFont* SkinFontPool::OfShape(const Shape& shape) {
    std::unique_ptr<CFont>& font = m_fonts[shape];
    if (font)
        return font.get();
    font = std::make_unique<CFont>();
    LOGFONTW record = {};
    std::get<0>(shape).copy(record.lfFaceName, LF_FACESIZE - 1);
    record.lfHeight = std::get<1>(shape);
    record.lfWeight = std::get<2>(shape);
    record.lfCharSet = DEFAULT_CHARSET;
    record.lfQuality = DEFAULT_QUALITY;
    if (!font->CreateFontIndirect(&record))
        font->CreateStockObject(DEFAULT_GUI_FONT);
    return font.get();
}

} // namespace _qv_commonctrl
