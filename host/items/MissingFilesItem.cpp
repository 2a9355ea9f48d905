// Media that a project names and that are not there: the host looks for them, the prompt lists them.
#include "gallery/GalleryItem.h"

#include <shlwapi.h>

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

constexpr const wchar_t* kProjectMedia[] = {
    L"sunset.png",
    L"harbour.png",
    L"tone.wav",
    L"day 2\\interview_day2_camB.mxf",
    L"day 2\\harbour_sunrise_4k.mov",
    L"sound\\room_tone_stereo.wav",
};

// The prompt's own texts are Chinese; the host puts the user's language in their place.
const wchar_t* Translate(const wchar_t* text) {
    static CString translated;
    const struct {
        const wchar_t* text;
        const wchar_t* key;
    } rows[] = {{L"是", L"IDS_CLIPWND_INFOSETYES"},
                {L"否", L"IDS_CLIPWND_INFOSETNO"},
                {L"以上物理文件不存在，是否继续？", L"IDS_GALLERY_MISSING_ASK"}};
    for (const auto& row : rows) {
        if (wcscmp(row.text, text) == 0) {
            translated = QV_LoadSysString(row.key);
            return translated;
        }
    }
    return text;
}

// The translation holds as long as the prompt runs.
class TranslationScope {
  public:
    TranslationScope() : m_former(QV_SetDictCallBack(&Translate)) {}
    ~TranslationScope() { QV_SetDictCallBack(m_former); }
    TranslationScope(const TranslationScope&) = delete;
    TranslationScope& operator=(const TranslationScope&) = delete;

  private:
    QVDictCallBack m_former;
};

void CheckProject(IGalleryContext& context) {
    const CString folder = context.SampleFolder();
    CStringArray missing;
    for (const wchar_t* name : kProjectMedia) {
        const CString path = folder.IsEmpty() ? CString(name) : folder + L"\\" + name;
        if (!PathFileExistsW(path))
            missing.Add(path);
    }
    context.ReportNumber(L"missing", missing.GetSize());
    const TranslationScope translation;
    CQVFilePathShowTip prompt(context.MainWnd());
    prompt.SetFile(missing);
    context.Report(L"CQVFilePathShowTip", prompt.DoModal() == IDOK ? L"IDOK" : L"IDCANCEL");
}

const GalleryRegistration missingFiles({GalleryGroup::Folders, L"missing", L"IDS_GALLERY_MISSING",
                                        CheckProject});

} // namespace
