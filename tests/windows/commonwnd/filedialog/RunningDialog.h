// The panels in the running file dialog: a folder of documents, pictures and folders, and items selected in it.
#pragma once

#include "PanelFixture.h"

namespace panels_test {

// The dialog with its protected members open to the tests.
class TestDialog : public CQVFileDialog {
  public:
    explicit TestDialog(const TempFolder& folder, DWORD option,
                        const wchar_t* filter = L"All|*.*|Text|*.txt|");
    using CQVFileDialog::m_dwPsdState;
    using CQVFileDialog::m_strSelPath;
    using CQVFileDialog::m_wndForderImport;
    using CQVFileDialog::m_wndPsdOption;

    HWND Frame() const { return ::GetParent(m_hWnd); }
    HWND List() const;
    int Height() const; // of the frame
    bool PsdShown() const { return ::IsWindowVisible(m_wndPsdOption.m_hWnd) != FALSE; }
    bool ImportEnabled() const;
};

class RunningDialog : public Panels {
  protected:
    // Runs the dialog; the user acts on it once its list shows the folder.
    static INT_PTR Run(TestDialog& dialog, const std::function<void(Driver&)>& act);
    // Selects one item by its name; null: none.
    static void Select(Driver& user, TestDialog& dialog, const wchar_t* name);
    // Presses the tab key, from the list on, until the control has the keyboard.
    static void TabTo(Driver& user, TestDialog& dialog, HWND control);

  private:
    qvtest::CurrentFolderKept m_formerFolder;
};

} // namespace panels_test
