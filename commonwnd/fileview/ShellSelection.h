// What is selected in the shell's list of the running file dialog.
#pragma once

#include "ShownFolder.h"

namespace _qv_commonwnd {

enum class SelectedKind {
    Missing, // nothing of that path exists
    File,    // also a folder with further attributes (hidden, read-only ...)
    Folder,  // a plain folder
};

struct SelectedItem {
    CString path;
    CString name; // without extension, or as the list shows it
    SelectedKind kind = SelectedKind::Missing;
    BOOL isFolder = FALSE; // a folder of either kind
};

enum class SelectionCount { One, Several };

// The selected item, of several the first: as the dialog has it, or else as the list shows it.
SelectedItem FindSelectedItem(const CFileDialog& dialog, CShownFolder& folder, HWND list,
                              SelectionCount count);

// Whether a path is that of an item of this name; a list may show names without their extension.
bool IsPathOf(const CString& path, const CString& shown);

// Text of the first selected item; empty when there is none.
CString FirstSelectedText(HWND list);

} // namespace _qv_commonwnd
