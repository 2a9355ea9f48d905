// The object before and without a run: construction, options, names by value.
#include "FileDialogFixture.h"

#include <QVPsdOptionWnd.h>

namespace filedialog_test {

TEST_F(FileDialog, OptionsHoldForOpenDialogsOnly) {
    for (const DWORD option : {DWORD(0), DWORD(FDO_KEEPOK), DWORD(FDO_IMPORTFOLDER), DWORD(0x3)}) {
        const TestFileDialog open(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, option);
        EXPECT_EQ(option, open.m_dwOption);
        const TestFileDialog save(FALSE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, option);
        EXPECT_EQ(DWORD(FDO_KEEPOK), save.m_dwOption);
    }
}

TEST_F(FileDialog, FlagsAreAdjusted) {
    const TestFileDialog dialog(TRUE, nullptr, nullptr, OFN_ENABLESIZING | OFN_FILEMUSTEXIST, nullptr,
                                nullptr, 0, TRUE, FALSE, 0);
    EXPECT_EQ(0u, dialog.m_ofn.Flags & OFN_ENABLESIZING);
    EXPECT_NE(0u, dialog.m_ofn.Flags & OFN_HIDEREADONLY);
    EXPECT_NE(0u, dialog.m_ofn.Flags & OFN_FILEMUSTEXIST);
    EXPECT_NE(0u, dialog.m_ofn.Flags & OFN_ENABLEHOOK) << "always the hook style";
    EXPECT_LT(dialog.m_ofn.nMaxFile, 260000u);
}

TEST_F(FileDialog, MultiSelectGetsItsOwnZeroedBuffer) {
    const TestFileDialog dialog(TRUE, nullptr, L"name", OFN_ALLOWMULTISELECT, nullptr, nullptr, 0, FALSE,
                                FALSE, 0);
    EXPECT_EQ(260000u, dialog.m_ofn.nMaxFile);
    EXPECT_EQ(152u, dialog.m_ofn.lStructSize);
    const std::wstring zeros(260000, L'\0');
    EXPECT_EQ(0, wmemcmp(zeros.data(), dialog.m_ofn.lpstrFile, zeros.size()));
}

TEST_F(FileDialog, MultiSelectBufferReplacedByTheHostIsNotFreed) {
    wchar_t own[16] = {};
    TestFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, nullptr, nullptr, 0, FALSE, FALSE, 0);
    dialog.m_ofn.lpstrFile = own;
    dialog.m_ofn.nMaxFile = 16;
}

TEST_F(FileDialog, MembersStartAsPublished) {
    const TestFileDialog dialog(TRUE, nullptr, nullptr, 0, L"A|*.a;*.b|B|*.c", nullptr, 0, FALSE, 7, 0);
    EXPECT_EQ(0u, dialog.m_dwPsdState);
    EXPECT_EQ(nullptr, dialog.m_pAdvanceWnd);
    EXPECT_EQ(0, dialog.m_bPreviewMode);
    EXPECT_EQ(7, dialog.m_bRawNames);
    EXPECT_EQ(1, dialog.m_bNameOK);
    EXPECT_EQ(eSelFile, dialog.m_eSelType);
    ASSERT_EQ(1, dialog.m_arrFilterExt.GetSize());
    EXPECT_STREQ(L"*.a;*.b", dialog.m_arrFilterExt.GetAt(0));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CQVFileDialog)));
    EXPECT_STREQ("CQVFileDialog", RUNTIME_CLASS(CQVFileDialog)->m_lpszClassName);
}

TEST_F(FileDialog, NameLatchAcceptsAtOnceAndRefusesOnceWhenCleared) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, 0);
    EXPECT_EQ(0, dialog.OnFileNameOK());
    EXPECT_EQ(0, dialog.OnFileNameOK());
    dialog.m_bNameOK = 0;
    EXPECT_EQ(1, dialog.OnFileNameOK());
    EXPECT_EQ(0, dialog.OnFileNameOK());
}

TEST_F(FileDialog, SettersStore) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, 0);
    CWnd window;
    dialog.SetAdvanceWnd(&window);
    EXPECT_EQ(&window, dialog.m_pAdvanceWnd);
    dialog.SetPreviewMode(3);
    EXPECT_EQ(3, dialog.m_bPreviewMode);
    dialog.EnableLayerInfo(1);
    EXPECT_EQ(0u, dialog.m_dwPsdState);
    dialog.EnableLayerInfo(2);
    EXPECT_EQ(0x2u, dialog.m_dwPsdState);
    dialog.EnableLayerInfo(0);
    EXPECT_EQ(0x2u, dialog.m_dwPsdState);
}

TEST_F(FileDialog, LayerChoicesComeFromThePanel) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, 0);
    EXPECT_TRUE(dialog.IsCompileImportType());
    dialog.EnableCompileImportType(FALSE);
    CStringArray names;
    names.Add(L"left over");
    dialog.GetImportLayerName(names);
    EXPECT_EQ(0, names.GetSize());
    std::vector<int> checks = {9};
    dialog.GetImportLayerInfo(checks);
    EXPECT_EQ(std::vector<int>{9}, checks) << "appended to, never emptied";
}

TEST_F(FileDialog, ImportOfAFolderNeedsASelection) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, FDO_IMPORTFOLDER);
    EXPECT_EQ(1, dialog.OnMsgImportForder(0, 0));
    EXPECT_EQ(eSelFile, dialog.GetSelTpye());
    EXPECT_TRUE(dialog.GetSelForderPath().IsEmpty());
    EXPECT_TRUE(dialog.GetSelFileFormat().IsEmpty());
}

TEST_F(FileDialog, CheckPathNameFollowsTheChosenFilter) {
    TestFileDialog dialog(FALSE, nullptr, nullptr, 0, L"AVI|*.avi|All|*.*|", nullptr, 0, FALSE, FALSE, 0);
    dialog.m_ofn.nFilterIndex = 1;
    EXPECT_STREQ(L"c:\\v\\clip.avi", dialog.CheckPathName(L"C:\\V\\Clip"));
    EXPECT_STREQ(L"", dialog.CheckPathName(L""));
    dialog.m_ofn.nFilterIndex = 2;
    EXPECT_STREQ(L"c:\\v\\clip.*", dialog.CheckPathName(L"C:\\V\\Clip"));
    dialog.m_ofn.nFilterIndex = 0;
    EXPECT_STREQ(L"c:\\v\\clip", dialog.CheckPathName(L"C:\\V\\Clip"));
    dialog.m_ofn.nFilterIndex = 0xFFFFFFFF;
    EXPECT_STREQ(L"c:\\v\\clip", dialog.CheckPathName(L"C:\\V\\Clip"));
}

TEST_F(FileDialog, KindsOfFilesAreToldByExtension) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, 0);
    EXPECT_TRUE(dialog.IsPreviewFile(L"a.TS"));
    EXPECT_FALSE(dialog.IsPreviewFile(L"a.mpeg"));
    EXPECT_FALSE(dialog.IsPreviewFile(L"mp4"));
    EXPECT_TRUE(dialog.IsShowPsdOption(L"c:\\a.Psd"));
    EXPECT_FALSE(dialog.IsShowPsdOption(L"c:\\a.psb"));
}

TEST_F(FileDialog, WithoutRunASelectionIsSplitBehindABackSlash) {
    TestFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE, FALSE, 0);
    CArray<CString, const CString&> files;
    dialog.SpliteFiles(L"single.avi", files);
    dialog.SpliteFiles(L"", files);
    ASSERT_EQ(1, files.GetSize());
    EXPECT_STREQ(L"single.avi", files.GetAt(0));
    dialog.SpliteFiles(L"\"a.avi\"", files);
    ASSERT_EQ(2, files.GetSize()) << "appended";
    EXPECT_STREQ(L"\\a.avi", files.GetAt(1));
}

} // namespace filedialog_test
