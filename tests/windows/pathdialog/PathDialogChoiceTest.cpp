// What the chooser answers.
#include "PathDialogFixture.h"

#include "Picture.h"

namespace pathdialog_test {

TEST_F(PathDialog, PresetFolderIsChosenByOk) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.folder(L"media").c_str();
    EXPECT_EQ(IDOK, Run(dialog, [](Driver& user, HWND frame) {
                  puts(qvtest::describeTree(frame).c_str());
                  WaitSelected(user, Tree(frame), L"media");
                  qvtest::Picture::ofWindow(frame).save(qvtest::picturePath(L"pathdialog"));
                  user.click(frame, kOk);
              }));
    EXPECT_STREQ(m_folder.path(L"media").c_str(), dialog.GetPathName());
}

} // namespace pathdialog_test
