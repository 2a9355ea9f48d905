// Real runs of a save dialog: what becomes of the typed name.
#include "FileDialogFixture.h"

namespace filedialog_test {

namespace {

// The system's question whether to overwrite.
HWND Question(Driver& user) {
    HWND question = nullptr;
    user.waitFor("the question", [&] {
        for (const HWND window : qvtest::findWindows({.className = L"#32770"}))
            if (qvtest::findControl(window, IDYES) && !::GetDlgItem(window, kFileNameCombo))
                question = window;
        return question != nullptr;
    });
    return question;
}

} // namespace

struct SaveRow {
    const char* name;
    const wchar_t* filter;
    int filterIndex; // 1-based
    const wchar_t* typed;
    const wchar_t* path; // in the folder, in lower case
    const wchar_t* fileName;
    const wchar_t* extension;
    const wchar_t* title;
};

class SaveNames : public FileDialog, public testing::WithParamInterface<SaveRow> {};

constexpr wchar_t kAviAll[] = L"AVI|*.avi|All|*.*|";

TEST_P(SaveNames, AreCompleted) {
    const SaveRow& row = GetParam();
    const auto dialog = Make(Kind::Save, row.filter);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  ChooseFilter(user, Frame(user), row.filterIndex - 1);
                  Confirm(user, row.typed);
              }));
    EXPECT_EQ(static_cast<DWORD>(row.filterIndex), dialog->m_ofn.nFilterIndex);
    const std::wstring path = Lower(m_folder.path()) + L"\\" + row.path;
    EXPECT_STREQ(path.c_str(), dialog->GetPathName());
    EXPECT_STREQ(path.c_str(), dialog->GetSaveFilePath());
    EXPECT_EQ(std::vector<std::wstring>{path}, Paths(*dialog));
    EXPECT_STREQ(row.fileName, dialog->GetFileName());
    EXPECT_STREQ(row.extension, dialog->GetFileExt());
    EXPECT_STREQ(row.title, dialog->GetFileTitle());
}

INSTANTIATE_TEST_SUITE_P(
    Table, SaveNames,
    testing::Values(
        SaveRow{"withoutExtension", kAviAll, 1, L"Clip", L"clip.avi", L"Clip.AVI", L"AVI", L"Clip"},
        SaveRow{"withExtension", kAviAll, 1, L"clip.AVI", L"clip.avi", L"clip.AVI", L"AVI", L"clip"},
        SaveRow{"otherExtension", kAviAll, 1, L"A.mov", L"a.mov.avi", L"A.mov.AVI", L"AVI", L"A.mov"},
        SaveRow{"partOfExtension", L"MP4|*.mp4|", 1, L"a.mp", L"a.mp", L"a.mp.MP4", L"MP4", L"a.mp"},
        SaveRow{"secondFilter", kAviAll, 2, L"Clip", L"clip.*", L"Clip.*", L"*", L"Clip"},
        SaveRow{"alternatives", L"V|*.avi;*.wmv|", 1, L"Clip", L"clip.avi", L"Clip.AVI", L"AVI", L"Clip"},
        SaveRow{"chinese", kAviAll, 1, L"视频", L"视频.avi", L"视频.AVI", L"AVI", L"视频"}),
    [](const auto& row) { return row.param.name; });

TEST_F(FileDialog, RawNamesAreTheSystemsOwn) {
    const auto dialog = Make(Kind::Save, kAviAll, 0, Names::Raw);
    EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) { Confirm(user, L"Clip"); }));
    EXPECT_STREQ(m_folder.path(L"Clip").c_str(), dialog->GetPathName());
    EXPECT_STREQ(m_folder.path(L"Clip").c_str(), dialog->GetSaveFilePath());
    EXPECT_STREQ(L"Clip", dialog->GetFileName());
    EXPECT_STREQ(L"", dialog->GetFileExt());
    EXPECT_STREQ(L"Clip", dialog->GetFileTitle());
    EXPECT_EQ(std::vector<std::wstring>{m_folder.path(L"Clip")}, Paths(*dialog));
}

TEST_F(FileDialog, SaveWithoutFilterLowersOnly) {
    for (const wchar_t* filter : {static_cast<const wchar_t*>(nullptr), L"", L"no bars", L"AVI|*.avi"}) {
        const auto dialog = Make(Kind::Save, filter);
        EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) { Confirm(user, L"Clip.Mov"); }));
        EXPECT_EQ(0, dialog->m_arrFilterExt.GetSize());
        EXPECT_STREQ((Lower(m_folder.path()) + L"\\clip.mov").c_str(), dialog->GetPathName());
        EXPECT_STREQ(L"Clip.Mov", dialog->GetFileName());
        EXPECT_STREQ(L"Mov", dialog->GetFileExt());
        EXPECT_STREQ(L"Clip", dialog->GetFileTitle());
    }
}

TEST_F(FileDialog, SaveStartsWithTheGivenName) {
    const auto dialog = Make(Kind::Save, kAviAll, 0, Names::Checked, L"Proposal");
    EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) {
                  const HWND frame = Frame(user);
                  user.waitText(NameEdit(frame), L"Proposal");
                  user.click(frame, kOk);
              }));
    EXPECT_STREQ((Lower(m_folder.path()) + L"\\proposal.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialog, SaveOverAnExistingFileAsks) {
    m_folder.file(L"taken.avi", "x");
    const auto dialog = Make(Kind::Save, kAviAll, OFN_OVERWRITEPROMPT);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  Confirm(user, L"taken.avi");
                  user.click(Question(user), IDYES);
              }));
    EXPECT_STREQ((Lower(m_folder.path()) + L"\\taken.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialog, OpenDialogKeepsNamesWhateverTheFilter) {
    m_folder.file(L"Clip.Mov", "x");
    const auto dialog = Make(Kind::Open, kAviAll);
    EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) { Confirm(user, L"Clip.Mov"); }));
    EXPECT_STREQ(m_folder.path(L"Clip.Mov").c_str(), dialog->GetPathName());
    EXPECT_STREQ(L"Mov", dialog->GetFileExt());
}

} // namespace filedialog_test
