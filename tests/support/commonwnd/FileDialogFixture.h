// What the tests of the file dialog share: a folder with files, the running dialog found and worked by hand.
#pragma once

#include "QVCommonWnd.h"

#include "ModalScript.h"
#include "SkinnedTest.h"
#include "TempFolder.h"

#include <QVCommonClass.h>

#include <string>
#include <vector>

namespace filedialog_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::TempFolder;

// Controls of the system dialog.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kFileTypeCombo = 1136;
inline constexpr int kFileNameCombo = 1148;
inline constexpr int kLookInCombo = 1137;
inline constexpr int kPlacesBar = 1184;
// Children that the dialog makes.
inline constexpr int kImportPanel = 1000;
inline constexpr int kImportButton = 1001; // inside the panel
inline constexpr int kPsdPanel = 10001;

// The dialog with its protected members open to the tests.
class TestFileDialog : public CQVFileDialog {
  public:
    using CQVFileDialog::CQVFileDialog;
    using CQVFileDialog::IsShowPsdOption;
    using CQVFileDialog::m_arrFilterExt;
    using CQVFileDialog::m_bNameOK;
    using CQVFileDialog::m_bPreviewMode;
    using CQVFileDialog::m_bRawNames;
    using CQVFileDialog::m_dwOption;
    using CQVFileDialog::m_dwPsdState;
    using CQVFileDialog::m_eSelType;
    using CQVFileDialog::m_pAdvanceWnd;
    using CQVFileDialog::m_pSkinnedList;
    using CQVFileDialog::m_strSelPath;
    using CQVFileDialog::m_szAdvance;
    using CQVFileDialog::ShowPsdOptionWnd;
    using CQVFileDialog::SpliteFiles;
    using CQVFileDialog::TestTempFilePath;
};

enum class Kind { Open, Save };
enum class Names { Checked, Raw };

class FileDialog : public qvtest::SkinnedTest {
  protected:
    void SetUp() override;

    // A dialog that starts in the test's folder.
    std::unique_ptr<TestFileDialog> Make(Kind kind, const wchar_t* filter = L"AVI|*.avi|All|*.*|",
                                         DWORD flags = 0, Names names = Names::Checked,
                                         const wchar_t* name = nullptr) const;

    // The system dialog's frame, once its file-name box is there.
    static HWND Frame(Driver& user);
    static HWND NameEdit(HWND frame);
    // The shell's list, once it shows so many rows.
    static HWND List(Driver& user, HWND frame, int rows);
    // Puts a text into the file-name box and presses Open or Save.
    static void Confirm(Driver& user, const std::wstring& name);
    static void ChooseFilter(Driver& user, HWND frame, int index);

    // Runs the dialog while the user acts on it.
    static INT_PTR Run(CQVFileDialog& dialog, const std::function<void(Driver&)>& act);
    static std::vector<std::wstring> Paths(CQVFileDialog& dialog);

    TempFolder m_folder;
    qvtest::CurrentFolderKept m_formerFolder;
};

// Lower case as the dialog gives it to saved paths.
std::wstring Lower(std::wstring text);

} // namespace filedialog_test
