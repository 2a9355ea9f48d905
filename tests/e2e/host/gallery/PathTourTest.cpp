// The tour of the working folders, the directory tree and the missing files.
#include "Tour.h"

#include "res/ResourceIds.h"

#include <commctrl.h>
#include <shlobj.h>

using namespace qvtest;
using namespace gallery;

namespace {

class PathTour : public Tour {
  protected:
    void SetUp() override {
        // A first start: what an earlier run has remembered is forgotten.
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QVCommonWnd\\Profile\\PathSet");
        Tour::SetUp();
        m_resources = session().samples().folder(L"resources");
        m_media = session().samples().folder(L"media");
    }

    // Types both folders and answers OK.
    void fill(HWND settings) {
        user().replaceText(user().waitControl(settings, IDC_RESPATH_EDIT), m_resources + L"\\");
        user().replaceText(user().waitControl(settings, IDC_MEDIAPATH_EDIT), m_media);
        user().waitText(::GetDlgItem(settings, IDC_MEDIAPATH_EDIT), m_media);
    }

    Results stored() const { return {L"ResPath=" + m_resources, L"MediaPath=" + m_media}; }

    std::wstring m_resources;
    std::wstring m_media;
};

} // namespace

TEST_P(PathTour, FirstStartAsksOnce) {
    session().open(L"firststart");
    HWND settings = session().waitDialog();
    user().click(settings, IDCANCEL);
    EXPECT_EQ((Results{L"ResPath=", L"MediaPath="}), session().waitClosed(L"firststart"));

    session().open(L"firststart"); // not answered yet: asked again
    settings = session().waitDialog();
    fill(settings);
    session().picture(settings, L"firststart");
    user().click(settings, IDOK);
    EXPECT_EQ(stored(), session().waitClosed(L"firststart"));

    session().open(L"firststart");
    EXPECT_EQ(stored(), session().waitClosed(L"firststart"));
}

TEST_P(PathTour, SettingsRefuseAFolderThatIsNotThere) {
    session().open(L"paths");
    const HWND settings = session().waitDialog();
    fill(settings);
    user().replaceText(::GetDlgItem(settings, IDC_MEDIAPATH_EDIT), L"Q:\\nowhere");
    user().click(settings, IDOK);
    const HWND box = session().waitDialog(settings);
    session().picture(box, L"paths-invalid");
    user().enter();
    user().waitGone(box);
    user().waitText(::GetDlgItem(settings, IDC_MEDIAPATH_EDIT), L"");
    user().replaceText(::GetDlgItem(settings, IDC_MEDIAPATH_EDIT), m_media);
    session().picture(settings, L"paths");
    user().enter();
    EXPECT_EQ(stored(), session().waitClosed(L"paths"));
}

TEST_P(PathTour, TreeComesBackToItsFolder) {
    session().open(L"dirtree");
    HWND window = session().waitDialog();
    const HWND tree = user().waitDescendant(window, WC_TREEVIEWW);
    user().waitFocus(tree);
    user().waitFor("the desktop's folders", [&] { return user().send(tree, TVM_GETCOUNT) > 1; });
    user().press(VK_DOWN); // the computer, or whatever stands first
    user().press(VK_RIGHT);
    user().waitFor("more folders", [&] { return user().send(tree, TVM_GETCOUNT) > 3; });
    user().press(VK_DOWN);
    session().picture(window, L"dirtree");
    user().click(window, IDOK);
    const Results chosen = session().waitClosed(L"dirtree");
    ASSERT_EQ(1u, chosen.size());
    EXPECT_NE(Results{L"QV_GetDirTree="}, chosen);
    EXPECT_NE(Results{L"QV_GetDirTree=IDCANCEL"}, chosen);

    session().open(L"dirtree");
    window = session().waitDialog();
    user().click(window, IDOK); // as it opened
    EXPECT_EQ(chosen, session().waitClosed(L"dirtree"));
}

TEST_P(PathTour, MissingFilesAreThoseThatAreNotThere) {
    session().open(L"missing");
    HWND prompt = session().waitDialog();
    EXPECT_EQ(3, user().send(::GetDlgItem(prompt, IDC_MISSINGFILES_LIST), LVM_GETITEMCOUNT));
    session().picture(prompt, L"missing");
    user().click(prompt, IDOK);
    EXPECT_EQ((Results{L"missing=3", L"CQVFilePathShowTip=IDOK"}), session().waitClosed(L"missing"));

    ::DeleteFileW(sample(L"harbour.png").c_str());
    session().open(L"missing");
    prompt = session().waitDialog();
    EXPECT_EQ(4, user().send(::GetDlgItem(prompt, IDC_MISSINGFILES_LIST), LVM_GETITEMCOUNT));
    user().escape();
    EXPECT_EQ((Results{L"missing=4", L"CQVFilePathShowTip=IDCANCEL"}), session().waitClosed(L"missing"));
}

INSTANTIATE_TEST_SUITE_P(Looks, PathTour, allLooks(), lookName);
