// What is selected in the shell's list of the running file dialog.
#pragma once

#include "ShownFolder.h"

#include <vector>

namespace _qv_commonwnd {

enum class SelectedKind {
    Missing, // nothing of that path exists
    File,    // also a folder with further attributes (hidden, read-only ...)
    Folder,  // a plain folder
};

struct SelectedItem {
    CString path;
    CString name; // as the list shows it
    SelectedKind kind = SelectedKind::Missing;
    BOOL isFolder = FALSE; // a folder of either kind
};

// The selected item, of several the first. The item itself decides: the dialog's name field holds what was selected or
// typed before while a folder is selected, and all names of several.
SelectedItem FindSelectedItem(const CFileDialog& dialog, CShownFolder& folder, HWND list);

// The files and folders that a folder (with a backslash at the end) shows under this name: of several, all but one show
// without their extension.
std::vector<CString> PathsShownAs(const CString& folder, const CString& shown);

} // namespace _qv_commonwnd
