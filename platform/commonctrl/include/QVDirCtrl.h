// QVDirCtrl.h: directory tree and directory list over the shell's name space.
#pragma once

#include "QVListControls.h"

namespace _qv_commonctrl {

// A tree of the shell's folders, filled lazily: a folder is listed when it is first expanded, on a thread of
// its own, so that a slow or dead drive never blocks the window. Paths are full paths without a trailing
// backslash (a drive root keeps it).
class QVCOMMONCTRL_API CQVDirTreeCtrl : public CQVTreeCtrl {
    DECLARE_DYNAMIC(CQVDirTreeCtrl)

  public:
    CQVDirTreeCtrl();
    ~CQVDirTreeCtrl() override;

    // Kind of entries: 0 folders and files, 1 folders only.
    void SetTreeCtrl(int kind);
    // Roots the tree at the desktop and expands it. FALSE when the shell cannot be asked.
    BOOL SetDesktopFolder();
    // Expands and selects the folder. FALSE, selection unchanged, when it does not exist.
    BOOL SetPathName(LPCWSTR path);
    // The selected folder's path; empty for none or for a virtual folder (such as "My Computer").
    CString GetPathName() const;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    class CQVDirTreeImpl* m_pImpl;
};

// The directory tree as the host functions create it: the tree as a window of its own with skinned frame.
class QVCOMMONCTRL_API CQVComboDTBox : public CQVDirTreeCtrl {
    DECLARE_DYNAMIC(CQVComboDTBox)

  public:
    CQVComboDTBox();
    ~CQVComboDTBox() override;
};

// A list of one folder's entries.
class QVCOMMONCTRL_API CQVDirListCtrl : public CQVListCtrl {
    DECLARE_DYNAMIC(CQVDirListCtrl)

  public:
    CQVDirListCtrl();
    ~CQVDirListCtrl() override;

    // Shows a folder. FALSE, list unchanged, when it does not exist.
    BOOL SetPathName(LPCWSTR folder);
    // Path of entry `item` (0-based), of the shown folder for -1. FALSE, and `path` empty, when there is
    // none.
    BOOL GetPathName(CString& path, int item) const;

  private:
    CString m_strFolder;
};

} // namespace _qv_commonctrl
