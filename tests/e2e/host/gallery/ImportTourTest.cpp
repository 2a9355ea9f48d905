// The tour through the open dialog's further forms: preview, folder import, layers of a document.
#include "SampleFiles.h"
#include "Tour.h"

#include "documents/PsdBuilder.h"

#include <commctrl.h>

using namespace qvtest;
using namespace gallery;

namespace {

constexpr int kFileTypeCombo = 1136;
constexpr int kFolderPanel = 1000;
constexpr int kImportButton = 1001;
constexpr int kPsdPanel = 10001;
constexpr int kImportTypeCombo = 20001;
constexpr int kLayerCombo = 20002;
constexpr int kPanelHeightPx = 60;

// Places in the list: the folder first, then the files of the type by name.
constexpr int kRushes = 0;
constexpr int kFilm = 1;   // among the pictures
constexpr int kSunset = 3; // behind harbour.png
constexpr int kTitles = 4;
constexpr int kTone = 1; // among the sounds
constexpr int kVoice = 2;

class ImportTour : public Tour {
  protected:
    void SetUp() override {
        Tour::SetUp();
        writeDocument(L"film.psd", {u"Background", u"\u4EBA\u7269", u"Title", u"Logo", u"Curves"});
        std::vector<std::u16string> titles;
        for (char16_t letter = u'A'; letter <= u'L'; ++letter)
            titles.push_back(std::u16string(u"Scene ") + letter);
        writeDocument(L"titles.psd", titles);
        writeSound(sample(L"voice.wav"), 2, 48000, 2.5, Loudness::Swelling);
        session().samples().file(L"rushes\\readme.txt", "text");
        session().samples().file(L"rushes\\take2.png", "no picture");
    }

    // A document of 64 x 48 pixels with these layers, the bottom one first, among the samples.
    void writeDocument(const std::wstring& name, const std::vector<std::u16string>& layers) {
        psdtest::Document document;
        document.widthPx = 64;
        document.heightPx = 48;
        for (const std::u16string& layer : layers)
            document.layers.push_back(psdtest::layer(layer));
        const psdtest::Bytes bytes = psdtest::build(document).bytes;
        session().samples().file(name, std::string(bytes.begin(), bytes.end()));
    }

    // The shell's list of the running dialog.
    HWND list(HWND dialog) {
        const HWND view = user().waitDescendant(dialog, L"SHELLDLL_DefView");
        return user().waitDescendant(view, L"SysListView32");
    }

    // Selects an item by its place in the list, by keys from one end of it.
    void select(HWND dialog, int item) {
        const HWND items = list(dialog);
        if (user().focus() != items) { // two clicks in a row would be a double click
            RECT client = {};
            ::GetClientRect(items, &client);
            user().clickAt(items,
                           {client.right - 6, client.bottom - 6}); // nothing there: only the focus comes
            user().waitFocus(items);
        }
        user().press(VK_END);
        user().press(VK_HOME);
        for (int i = 0; i < item; ++i)
            user().press(VK_DOWN);
        user().waitFor("a selected item", [&] { return user().send(items, LVM_GETSELECTEDCOUNT) == 1; });
        user().settle();
    }

    void waitPreview(const std::wstring& what) {
        user().waitFor("the preview of " + toUtf8(what), [&] {
            const auto shown = session().values(L"preview");
            return !shown.empty() && shown.back() == what;
        });
    }

    HWND dropped(HWND combo) {
        user().send(combo, CB_SHOWDROPDOWN, FALSE);
        RECT client = {};
        ::GetClientRect(combo, &client);
        user().clickAt(combo, {client.right - 8, client.bottom / 2});
        user().waitFor("the list", [&] { return user().send(combo, CB_GETDROPPEDSTATE) != 0; });
        const auto lists = findWindows({.className = L"ComboLBox", .process = session().process()});
        if (lists.empty())
            user().fail("no list dropped down");
        return lists.front();
    }

    // Rows are as high as the control says; they are not scrolled.
    void pick(HWND combo, HWND rows, int row) {
        const int height = static_cast<int>(user().send(combo, CB_GETITEMHEIGHT, 0));
        user().clickAt(rows, {30, row * height + height / 2});
    }

    int heightOf(HWND window) {
        RECT rect = {};
        ::GetWindowRect(window, &rect);
        return rect.bottom - rect.top;
    }
};

} // namespace

TEST_P(ImportTour, TwoOfFiveLayersAreLeftOut) {
    session().open(L"open-psd");
    const HWND dialog = session().waitDialog();
    const int height = heightOf(dialog);
    select(dialog, kFilm);
    const HWND panel = user().waitControl(dialog, kPsdPanel);
    user().waitFor("the panel", [&] { return ::IsWindowVisible(panel) != FALSE; });
    EXPECT_EQ(height + kPanelHeightPx, heightOf(dialog));

    const HWND type = user().waitControl(panel, kImportTypeCombo);
    pick(type, dropped(type), 1);
    const HWND layers = user().waitControl(panel, kLayerCombo);
    user().waitEnabled(layers, true);
    const HWND rows = dropped(layers);
    session().picture(rows, L"open-psd-layers");
    pick(layers, rows, 0); // Curves
    pick(layers, rows, 3); // the figures
    user().press(VK_RETURN);
    user().waitGone(rows);
    session().picture(dialog, L"open-psd");
    user().click(dialog, IDOK);
    EXPECT_EQ((Results{L"file=" + sample(L"film.psd"), L"files=1", L"import=by layers", L"layer=Background",
                       L"left out=\u4EBA\u7269", L"layer=Title", L"layer=Logo", L"left out=Curves"}),
              session().waitClosed(L"open-psd"));
}

TEST_P(ImportTour, DocumentIsRenderedUnlessSaidOtherwise) {
    session().open(L"open-psd");
    const HWND dialog = session().waitDialog();
    const int height = heightOf(dialog);
    select(dialog, kFilm);
    const HWND panel = user().waitControl(dialog, kPsdPanel);
    user().waitFor("the panel", [&] { return ::IsWindowVisible(panel) != FALSE; });
    select(dialog, kSunset); // a picture: the panel goes
    user().waitGone(panel);
    EXPECT_EQ(height, heightOf(dialog));
    select(dialog, kFilm);
    user().waitFor("the panel", [&] { return ::IsWindowVisible(panel) != FALSE; });
    EXPECT_EQ(height + kPanelHeightPx, heightOf(dialog));
    user().click(dialog, IDOK);
    EXPECT_EQ((Results{L"file=" + sample(L"film.psd"), L"files=1", L"import=rendered"}),
              session().waitClosed(L"open-psd"));
}

TEST_P(ImportTour, FolderIsImported) {
    session().open(L"import-folder");
    const HWND dialog = session().waitDialog();
    const HWND panel = user().waitControl(dialog, kFolderPanel);
    const HWND button = user().waitControl(panel, kImportButton);
    EXPECT_FALSE(::IsWindowVisible(findControl(dialog, IDOK)));
    EXPECT_FALSE(::IsWindowEnabled(button));
    select(dialog, kRushes);
    user().waitEnabled(button, true);
    session().picture(dialog, L"import-folder");
    select(dialog, kSunset);
    user().waitEnabled(button, false);
    select(dialog, kRushes);
    user().waitEnabled(button, true);
    user().click(button);
    const Results results = session().waitClosed(L"import-folder");
    ASSERT_EQ(5u, results.size());
    EXPECT_EQ(L"folder=" + sample(L"rushes"), results[0]);
    EXPECT_EQ(L"format=Pictures", results[1].substr(0, 15));
    EXPECT_EQ(L"file=" + sample(L"rushes\\take1.png"), results[2]);
    EXPECT_EQ(L"file=" + sample(L"rushes\\take2.png"), results[3]);
    EXPECT_EQ(L"files=2", results[4]);
}

TEST_P(ImportTour, PreviewFollowsTheSelection) {
    session().open(L"open-preview");
    const HWND dialog = session().waitDialog();
    user().waitFor("the window to be docked", [&] { return !session().values(L"filetype").empty(); });
    EXPECT_EQ(L"1", session().values(L"filetype").front());
    select(dialog, kSunset);
    waitPreview(L"picture sunset.png: 320x180");
    session().picture(dialog, L"open-preview");
    select(dialog, kFilm);
    waitPreview(L"document film.psd: 64x48, 8 bits, 5 layers");
    session().picture(dialog, L"open-preview-layers");
    select(dialog, kTitles);
    waitPreview(L"document titles.psd: 64x48, 8 bits, 12 layers");
    session().picture(dialog, L"open-preview-many-layers");
    select(dialog, kRushes);
    waitPreview(L"folder rushes: 3 files");
    session().picture(dialog, L"open-preview-folder");
    user().press(VK_END, Shift);
    waitPreview(L"several: 5");
    RECT client = {};
    ::GetClientRect(list(dialog), &client);
    user().clickAt(list(dialog), {client.right - 6, client.bottom - 6});
    waitPreview(L"nothing");

    const HWND type = user().waitControl(dialog, kFileTypeCombo);
    pick(type, dropped(type), 1);
    user().waitFor("the next type", [&] { return session().values(L"filetype").back() == L"2"; });
    select(dialog, kTone);
    waitPreview(L"sound tone.wav: 1000 ms, 48000 Hz, 2 channels, 16 bits");
    select(dialog, kVoice);
    waitPreview(L"sound voice.wav: 2500 ms, 48000 Hz, 2 channels, 16 bits");
    session().picture(dialog, L"open-preview-sound");
    user().click(dialog, IDCANCEL);
    EXPECT_EQ(L"CQVFileDialog=IDCANCEL", session().waitClosed(L"open-preview").back());
}

INSTANTIATE_TEST_SUITE_P(Looks, ImportTour, allLooks(), lookName);
