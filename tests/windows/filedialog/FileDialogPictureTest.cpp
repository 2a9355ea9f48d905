// Pictures of the dialog in its forms, skins and languages, and what must not be seen in any of them.
#include "FileDialogFixture.h"
#include "PreviewProbe.h"

#include "Picture.h"

#include <QVDict.h>
#include <QVSkin.h>

#include <algorithm>

namespace filedialog_test {

using qvtest::Picture;

namespace {

// The longest row of pixels of one colour: an area of the system's own is wider than any line of an icon or letter.
int LongestRun(const Picture& picture, COLORREF colour) {
    int longest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        int run = 0;
        for (int x = 0; x < picture.width(); ++x) {
            run = picture.at(x, y) == colour ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    return longest;
}

constexpr int kWidestDetailPx = 24;

enum class Form { Open, Save, Several, Advance, WideAdvance, Import, ImportBeside, ImportAdvance, Neither };

struct FormRow {
    const char* name;
    Form form;
};

constexpr FormRow kForms[] = {{"open", Form::Open},           {"save", Form::Save},
                              {"several", Form::Several},     {"advance", Form::Advance},
                              {"wide", Form::WideAdvance},    {"import", Form::Import},
                              {"beside", Form::ImportBeside}, {"importadvance", Form::ImportAdvance},
                              {"neither", Form::Neither}};

enum class Look { DarkChinese, LightEnglish };

} // namespace

class FileDialogPicture : public FileDialog, public testing::WithParamInterface<std::tuple<FormRow, Look>> {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        for (const wchar_t* name :
             {L"Interview 02.avi", L"Opening titles.avi", L"Skyline.psd", L"旁白 最终版.avi"})
            m_folder.file(name, "x");
        m_folder.folder(L"Archive");
        m_folder.folder(L"素材");
        UseLook(IsLight());
    }
    void TearDown() override {
        UseLook(false);
        FileDialog::TearDown();
    }

    static bool IsLight() { return std::get<1>(GetParam()) == Look::LightEnglish; }

    static void UseLook(bool light) {
        using namespace _qv_commonctrl;
        QV_SetSkinPath(nullptr);
        QV_SetLanguage(light ? L"en-US" : L"zh-CN");
        if (!light)
            return;
        const CString dark = QV_GetSkinPath();
        QV_SetSkinPath(dark.Left(dark.ReverseFind(L'\\')) + L"\\light");
    }

    std::unique_ptr<TestFileDialog> MakeForm(Form form) const {
        DWORD options = 0;
        if (form == Form::Import || form == Form::ImportBeside || form == Form::ImportAdvance)
            options |= FDO_IMPORTFOLDER;
        if (form != Form::Import && form != Form::Neither)
            options |= FDO_KEEPOK;
        const DWORD flags = form == Form::Several ? OFN_ALLOWMULTISELECT : 0;
        auto dialog =
            std::make_unique<TestFileDialog>(form != Form::Save, nullptr, nullptr, flags,
                                             L"All files (*.*)|*.*|", nullptr, 0, FALSE, FALSE, options);
        dialog->m_ofn.lpstrInitialDir = m_folder.path().c_str();
        return dialog;
    }
};

TEST_P(FileDialogPicture, ShowsNothingOfTheSystems) {
    const auto [row, look] = GetParam();
    const auto dialog = MakeForm(row.form);
    PreviewProbe preview(row.form == Form::WideAdvance ? CSize(900, 120) : CSize(300, 120));
    if (row.form == Form::Advance || row.form == Form::WideAdvance || row.form == Form::ImportAdvance)
        dialog->SetAdvanceWnd(&preview);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = user.waitDescendant(frame, L"SysListView32");
        user.waitFor("the files", [&] { return user.send(list, LVM_GETITEMCOUNT) == 6; });
        user.onUi([&] {
            ListView_SetItemState(list, 2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        });
        if (row.form == Form::Several)
            user.onUi([&] { ListView_SetItemState(list, 3, LVIS_SELECTED, LVIS_SELECTED); });
        user.settle();
        const Picture picture = Picture::ofWindow(frame);
        const std::string name =
            std::string("filedialog-") + row.name + (IsLight() ? "-light-en" : "-dark-zh");
        picture.save(qvtest::picturePath(qvtest::toWide(name)));
        const int whiteRun = IsLight() ? 0 : LongestRun(picture, ::GetSysColor(COLOR_WINDOW));
        EXPECT_GE(kWidestDetailPx, whiteRun) << "the light skin has white of its own";
        EXPECT_GE(kWidestDetailPx, LongestRun(picture, ::GetSysColor(COLOR_BTNFACE)));
        EXPECT_GE(kWidestDetailPx, LongestRun(picture, ::GetSysColor(COLOR_HIGHLIGHT)));
        EXPECT_LT(2000, picture.count(_qv_commonctrl::QV_GetSysColor(_qv_commonctrl::QVCLR_LIST)));
        user.escape();
    });
}

INSTANTIATE_TEST_SUITE_P(Table, FileDialogPicture,
                         testing::Combine(testing::ValuesIn(kForms),
                                          testing::Values(Look::DarkChinese, Look::LightEnglish)),
                         [](const testing::TestParamInfo<FileDialogPicture::ParamType>& param) {
                             return std::string(std::get<0>(param.param).name) +
                                    (std::get<1>(param.param) == Look::LightEnglish ? "Light" : "Dark");
                         });

} // namespace filedialog_test
