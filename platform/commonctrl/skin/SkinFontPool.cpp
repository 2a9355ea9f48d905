#include "SkinFontPool.h"

#include "dictionary/Language.h"
#include "module/Guards.h"
#include "QVSkin.h"
#include "SkinStore.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr UINT kMaxDpi = 4800;
constexpr int kLastResortHeightPx = 12; // at 96 DPI, when no skin has a font

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
    EnumFontFamiliesExW(ScreenDc(), &wanted, NoteFace, reinterpret_cast<LPARAM>(&found), 0);
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

} // namespace

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
        return OfShape({std::wstring(), -QV_ScaleForDpi(kLastResortHeightPx, dpi), FW_NORMAL});
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
