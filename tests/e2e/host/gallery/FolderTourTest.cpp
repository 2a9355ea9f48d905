// The tour of the folder chooser.
#include "Tour.h"

using namespace qvtest;
using namespace gallery;

namespace {

constexpr int kCloseFromRightPx = 16; // the middle of the painted close button
constexpr int kCloseTopPx = 9;

class FolderTour : public Tour {};

} // namespace

TEST_P(FolderTour, FolderIsChosen) {
    session().samples().settleDates();
    session().open(L"folder");
    const HWND dialog = session().waitDialog();
    const HWND tree = user().waitDescendant(dialog, L"SysTreeView32");
    user().waitFocus(tree);
    user().press(VK_RIGHT); // opens the preset folder, then goes to the one in it
    user().settle();
    user().press(VK_RIGHT);
    user().settle();
    session().picture(dialog, L"folder");
    user().enter();
    EXPECT_EQ(Results{L"CQVPathDialog=" + sample(L"rushes")}, session().waitClosed(L"folder"));
}

TEST_P(FolderTour, PaintedCloseButtonCancels) {
    session().open(L"folder");
    const HWND dialog = session().waitDialog();
    RECT client;
    ::GetClientRect(dialog, &client);
    user().clickAt(dialog, {client.right - kCloseFromRightPx, kCloseTopPx});
    EXPECT_EQ(Results{L"CQVPathDialog=IDCANCEL"}, session().waitClosed(L"folder"));
}

INSTANTIATE_TEST_SUITE_P(Looks, FolderTour, allLooks(), lookName);
