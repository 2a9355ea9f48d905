// A dialog with the controls of the system's browse-for-folder dialog where the tree lies in a host window.
#pragma once

#include <afxwin.h>

#include <string>

namespace folderfilter_test {

class FakeBrowseDialog {
  public:
    enum class Controls { All, None };

    explicit FakeBrowseDialog(Controls controls = Controls::All);
    ~FakeBrowseDialog();
    FakeBrowseDialog(const FakeBrowseDialog&) = delete;
    FakeBrowseDialog& operator=(const FakeBrowseDialog&) = delete;

    HWND dialog = nullptr;
    HWND host = nullptr;
    HWND tree = nullptr;
    HWND ok = nullptr;
    HWND cancel = nullptr;
    HWND newFolder = nullptr;
    HWND title = nullptr;
    HWND status = nullptr;

    // What the dialog was last told to select.
    bool selectionAsked = false;
    WPARAM selectionKind = 0;
    std::wstring selection;

  private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND Add(const wchar_t* className, const wchar_t* text, DWORD style, int id, HWND parent) const;
};

} // namespace folderfilter_test
