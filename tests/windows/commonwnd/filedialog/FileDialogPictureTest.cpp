// Pictures of the dialog in its forms, skins and languages, and what must not be seen in any of them.
#include "FileDialogFixture.h"
#include "PreviewProbe.h"

#include "Picture.h"
#include "documents/PsdBuilder.h"

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

enum class Form {
    Open,
    Save,
    Several,
    Advance,
    WideAdvance,
    Import,
    ImportBeside,
    ImportAdvance,
    Neither,
    Layers,
    LayersAdvance
};

struct FormRow {
    const char* name;
    Form form;
};

constexpr FormRow kForms[] = {{"open", Form::Open},
                              {"save", Form::Save},
                              {"several", Form::Several},
                              {"advance", Form::Advance},
                              {"wide", Form::WideAdvance},
                              {"import", Form::Import},
                              {"beside", Form::ImportBeside},
                              {"importadvance", Form::ImportAdvance},
                              {"neither", Form::Neither},
                              {"layers", Form::Layers},
                              {"layersadvance", Form::LayersAdvance}};

bool HasAdvanceWnd(Form form) {
    return form == Form::Advance || form == Form::WideAdvance || form == Form::ImportAdvance ||
           form == Form::LayersAdvance;
}

bool HasLayers(Form form) {
    return form == Form::Layers || form == Form::LayersAdvance;
}

constexpr int kPsdPanelImportType = 20001;
constexpr int kByLayers = 1;
constexpr int kFilm = 2; // rows of the list
constexpr int kDocument = 4;

struct Look {
    const char* name;
    const wchar_t* language;
    bool isLight;
};

constexpr Look kLooks[] = {{"-dark-zh", L"zh-CN", false},
                           {"-light-en", L"en-US", true},
                           {"-dark-en", L"en-US", false},
                           {"-light-zh", L"zh-CN", true}};

} // namespace

class FileDialogPicture : public FileDialog, public testing::WithParamInterface<std::tuple<FormRow, Look>> {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        for (const wchar_t* name : {L"Interview 02.avi", L"Opening titles.avi", L"旁白 最终版.avi"})
            m_folder.file(name, "x");
        psdtest::Document document;
        for (const char16_t* name : {u"Background", u"天空", u"Title"})
            document.layers.push_back(psdtest::layer(name));
        const psdtest::Bytes bytes = psdtest::build(document).bytes;
        m_folder.file(L"Skyline.psd", std::string(bytes.begin(), bytes.end()));
        m_folder.folder(L"Archive");
        m_folder.folder(L"素材");
        UseLook(std::get<1>(GetParam()));
    }
    void TearDown() override {
        UseLook(kLooks[0]);
        FileDialog::TearDown();
    }

    static void UseLook(const Look& look) {
        using namespace _qv_commonctrl;
        QV_SetSkinPath(nullptr);
        QV_SetLanguage(look.language);
        if (!look.isLight)
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
        if (HasLayers(form))
            dialog->EnableLayerInfo(2);
        return dialog;
    }

    // Selects the document and import by layers.
    static void ShowLayers(Driver& user, HWND frame) {
        const HWND panel = ::GetDlgItem(frame, kPsdPanel);
        user.waitFor("the panel", [&] { return ::IsWindowVisible(panel) != FALSE; });
        const HWND combo = ::GetDlgItem(panel, kPsdPanelImportType);
        user.send(combo, CB_SETCURSEL, kByLayers);
        user.send(panel, WM_COMMAND, MAKEWPARAM(kPsdPanelImportType, CBN_SELCHANGE),
                  reinterpret_cast<LPARAM>(combo));
    }
};

TEST_P(FileDialogPicture, ShowsNothingOfTheSystems) {
    const auto [row, look] = GetParam();
    const auto dialog = MakeForm(row.form);
    PreviewProbe preview(row.form == Form::WideAdvance ? CSize(900, 120) : CSize(300, 120));
    if (HasAdvanceWnd(row.form))
        dialog->SetAdvanceWnd(&preview);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = user.waitDescendant(frame, L"SysListView32");
        user.waitFor("the files", [&] { return user.send(list, LVM_GETITEMCOUNT) == 6; });
        user.onUi([&] {
            const int item = HasLayers(row.form) ? kDocument : kFilm;
            ListView_SetItemState(list, item, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        });
        if (HasLayers(row.form))
            ShowLayers(user, frame);
        if (row.form == Form::Several)
            user.onUi([&] { ListView_SetItemState(list, 3, LVIS_SELECTED, LVIS_SELECTED); });
        user.settle();
        const Picture picture = Picture::ofWindow(frame);
        const std::string name = std::string("filedialog-") + row.name + look.name;
        picture.save(qvtest::picturePath(qvtest::toWide(name)));
        const int whiteRun = look.isLight ? 0 : LongestRun(picture, ::GetSysColor(COLOR_WINDOW));
        EXPECT_GE(kWidestDetailPx, whiteRun) << "the light skin has white of its own";
        EXPECT_GE(kWidestDetailPx, LongestRun(picture, ::GetSysColor(COLOR_BTNFACE)));
        EXPECT_GE(kWidestDetailPx, LongestRun(picture, ::GetSysColor(COLOR_HIGHLIGHT)));
        EXPECT_LT(2000, picture.count(_qv_commonctrl::QV_GetSysColor(_qv_commonctrl::QVCLR_LIST)));
        user.escape();
    });
}

INSTANTIATE_TEST_SUITE_P(Table, FileDialogPicture,
                         testing::Combine(testing::ValuesIn(kForms), testing::ValuesIn(kLooks)),
                         [](const testing::TestParamInfo<FileDialogPicture::ParamType>& param) {
                             std::string name =
                                 std::string(std::get<0>(param.param).name) + std::get<1>(param.param).name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace filedialog_test
