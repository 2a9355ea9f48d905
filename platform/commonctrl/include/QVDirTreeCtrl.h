// QVDirTreeCtrl.h: a tree of the shell's folders.
#pragma once

#include "QVTreeCtrl.h"

namespace _qv_commonctrl {

// A tree of the shell's folders, filled lazily: a folder is listed when it is first expanded, on a thread of
// its own, so that a slow or dead drive never blocks the window. Paths are full paths without a trailing
// backslash (a drive root keeps it). F5 lists the selected folder again. Hidden folders are left out until
// SetPathName names one. Items expand by way of the tree's notifications, which a framework parent reflects.
class QVCOMMONCTRL_API CQVDirTreeCtrl : public CQVTreeCtrl {
    DECLARE_DYNAMIC(CQVDirTreeCtrl)

  public:
    CQVDirTreeCtrl();
    ~CQVDirTreeCtrl() override;

    // Kind of entries: 0 folders and files, 1 folders only.
    void SetTreeCtrl(int kind);
    // Roots the tree at the desktop and expands it, now or as soon as the shell answers. FALSE when the shell
    // cannot be asked.
    BOOL SetDesktopFolder();
    // Expands and selects the folder, and its parents even where they cannot be listed. FALSE, selection unchanged, when
    // it is not there (any more) or does not answer within 2 seconds; slow parents may take 2 seconds before that.
    BOOL SetPathName(LPCWSTR path);
    // The selected folder's path; empty for none or for a virtual folder (such as "My Computer"). The root is
    // the user's desktop folder.
    CString GetPathName() const;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    friend class DirTreeItems;
    class DirTreeModel* m_pModel;
};

} // namespace _qv_commonctrl
