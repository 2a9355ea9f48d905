// The folder that the running file dialog shows.
#pragma once

#include <afxdlgs.h>

namespace _qv_commonwnd {

// The dialog is asked once for each folder: it puts its answer together anew each time, from the registry and the
// name field.
class CShownFolder {
  public:
    // Another folder is shown.
    void Forget() { m_asked = false; }

    // Its path with a backslash at the end; empty when it is none of the file system.
    const CString& PathFor(const CFileDialog& dialog);
    // Whether the names in the list are those of the files, with extension.
    bool ShowsExtensions(const CFileDialog& dialog);
    // The path of the item that it shows under a name which is not that of its file; empty when there is none. Looks
    // at every item.
    static CString PathOfItem(const CFileDialog& dialog, const CString& shown);

  private:
    void Ask(const CFileDialog& dialog);

    CString m_path;
    bool m_showsExtensions = false;
    bool m_asked = false;
};

} // namespace _qv_commonwnd
