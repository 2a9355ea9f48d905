// The tour: every window of the gallery opened, used and answered as a user does, in each language and skin.
#include "Tour.h"

using namespace qvtest;
using namespace gallery;

namespace {

constexpr int kYes = 31095;
constexpr int kNo = 31096;
constexpr int kNoAsk = 31098;
constexpr int kFileName = 1148;

class FilesTour : public Tour {
  protected:
    // Types into the running file dialog's name field.
    void typeName(HWND dialog, const std::wstring& text) {
        const HWND combo = user().waitControl(dialog, kFileName);
        const HWND edit = user().waitDescendant(combo, L"Edit");
        user().replaceText(edit, text);
        user().waitText(edit, text);
    }
};

} // namespace

TEST_P(Tour, MainWindow) {
    session().picture(session().mainWindow(), L"gallery");
    EXPECT_FALSE(textOf(session().mainWindow()).empty());
}

TEST_P(Tour, MessageBoxAnswersAreReported) {
    session().open(L"messagebox");
    HWND box = session().waitDialog();
    session().picture(box, L"messagebox");
    user().click(box, kYes);
    EXPECT_EQ(Results{L"QV_MessageBox=2 (Yes)"}, session().waitClosed(L"messagebox"));

    session().open(L"messagebox-long");
    box = session().waitDialog();
    session().picture(box, L"messagebox-long");
    user().click(box, kNoAsk);
    user().click(box, kNo);
    EXPECT_EQ(Results{L"QV_MessageBox=4 (No)"}, session().waitClosed(L"messagebox-long"));

    session().open(L"messagebox"); // the ticked answer comes back at once
    EXPECT_EQ(Results{L"QV_MessageBox=4 (No)"}, session().waitClosed(L"messagebox"));
    session().open(L"messagereset");
    EXPECT_EQ(Results{L"QV_MessageRest=0"}, session().waitClosed(L"messagereset"));

    session().open(L"messagebox");
    box = session().waitDialog();
    user().escape();
    EXPECT_EQ(Results{L"QV_MessageBox=8 (Cancel)"}, session().waitClosed(L"messagebox"));
}

TEST_P(FilesTour, OneFileIsOpened) {
    session().open(L"open");
    const HWND dialog = session().waitDialog();
    typeName(dialog, L"sunset.png");
    session().picture(dialog, L"open");
    user().click(dialog, IDOK);
    EXPECT_EQ((Results{L"file=" + sample(L"sunset.png"), L"files=1"}), session().waitClosed(L"open"));
}

TEST_P(FilesTour, SeveralFilesAreOpened) {
    session().open(L"open-many");
    const HWND dialog = session().waitDialog();
    typeName(dialog, L"\"sunset.png\" \"tone.wav\" \"harbour.png\"");
    session().picture(dialog, L"open-many");
    user().click(dialog, IDOK);
    EXPECT_EQ((Results{L"file=" + sample(L"sunset.png"), L"file=" + sample(L"tone.wav"),
                       L"file=" + sample(L"harbour.png"), L"files=3"}),
              session().waitClosed(L"open-many"));
}

TEST_P(FilesTour, CancelledFileDialogSaysSo) {
    session().open(L"open");
    const HWND dialog = session().waitDialog();
    user().click(dialog, IDCANCEL);
    EXPECT_EQ(Results{L"CQVFileDialog=IDCANCEL"}, session().waitClosed(L"open"));
}

TEST_P(FilesTour, SavedNameGetsTheFilterExtensionInLowerCase) {
    session().open(L"save");
    const HWND dialog = session().waitDialog();
    typeName(dialog, L"Clip");
    session().picture(dialog, L"save");
    user().click(dialog, IDOK);
    std::wstring path = sample(L"Clip.avi");
    ::CharLowerW(path.data());
    EXPECT_EQ((Results{L"path=" + path, L"name=Clip.AVI", L"extension=AVI", L"title=Clip"}),
              session().waitClosed(L"save"));
}

INSTANTIATE_TEST_SUITE_P(Looks, Tour, allLooks(), lookName);
INSTANTIATE_TEST_SUITE_P(Looks, FilesTour, allLooks(), lookName);
