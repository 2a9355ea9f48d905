// QVPathDialog.h: lets the user choose or make a folder.
//
//     CQVPathDialog dialog(this);
//     dialog.m_strPath = lastFolder; // selected at the start when it exists
//     if (dialog.DoModal() == IDOK)
//         Import(dialog.GetPathName()); // "C:\Media"
#pragma once

#include "QVCommonWndApi.h"

namespace _qv_commonwnd {

class CQVPathBrowseWnd;

// The system's browse-for-folder dialog in skinned form. The tree shows folders and shortcuts to folders;
// choosing a shortcut answers the folder it leads to. User-interface thread; COM is initialised for the
// length of DoModal on a thread that has not done it.
class QVCOMMONWND_API CQVPathDialog {
  public:
    // pParent: the owner, borrowed; null for the active window.
    explicit CQVPathDialog(CWnd* pParent);
    // A copy shares the window object of its source; only one of them can be shown at a time.
    CQVPathDialog(const CQVPathDialog& other);
    CQVPathDialog& operator=(const CQVPathDialog& other);
    virtual ~CQVPathDialog();

    // IDOK: m_strPath is the chosen folder; when that has no path (a virtual folder) m_strPath stays as it
    // was, and for a shortcut that leads nowhere it is empty. IDCANCEL: cancelled, or the system could not
    // show its dialog; m_strPath is empty then. May be called again.
    virtual INT_PTR DoModal();

    // A copy of m_strPath.
    CString GetPathName();

    CString m_strTitle;   // text above the tree; from the constructor: the dictionary's
    CString m_strPath;    // in: the folder to select, ignored when it is not there; out: see DoModal
    int m_bShowNewFolder; // 0 hides the button that makes a new folder; 1 from the constructor
    CWnd* m_pParent;      // see the constructor
    CQVPathBrowseWnd* m_pBrowseWnd; // the window that lies over the system's dialog; of the library
};

} // namespace _qv_commonwnd
