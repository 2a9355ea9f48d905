// What is selected in the shell's list of the running file dialog, and what the list is given once.
#pragma once

#include <afxdlgs.h>

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

// The folder that the dialog shows. The dialog is asked once for each folder: it puts its answer together anew each
// time, from the registry and the name field.
class CShownFolder {
  public:
    // Another folder is shown.
    void Forget() { m_asked = false; }

    // Its path with a backslash at the end; empty when it is none of the file system.
    const CString& PathFor(const CFileDialog& dialog);
    // Whether the names in the list are those of the files, with extension.
    bool ShowsExtensions(const CFileDialog& dialog);

  private:
    void Ask(const CFileDialog& dialog);

    CString m_path;
    bool m_showsExtensions = false;
    bool m_asked = false;
};

// The selected item, of several the first: as the dialog has it, or else as the list shows it.
SelectedItem FindSelectedItem(const CFileDialog& dialog, CShownFolder& folder, HWND list,
                              SelectionCount count);

// Whether a path is that of an item of this name; a list may show names without their extension.
bool IsPathOf(const CString& path, const CString& shown);

// Text of the first selected item; empty when there is none.
CString FirstSelectedText(HWND list);

// Takes the sunken edge away, which the system draws in its own colours.
void DropEdge(HWND list);

// A background picture of one colour: a shell that paints a ground of its own uses it instead. The list owns it.
void SetPlainGround(HWND list, COLORREF color);

} // namespace _qv_commonwnd
