// QVDirCtrl.h: directory tree and directory list over the shell's name space.
#pragma once

#include "QVListControls.h"

namespace _qv_commonctrl {

// What a QVFolderLister has done.
enum QVListerAnswer : int {
    QVLISTER_ASK_SYSTEM = 0, // nothing: the folder is the system's to list
    QVLISTER_LISTED = 1,
    QVLISTER_FAILED = 2, // the folder is the lister's, and cannot be listed
};

// Called by a lister for each entry. `context` is what the lister was called with.
typedef void(CALLBACK* QVAddFolderEntry)(void* context, LPCWSTR name, BOOL isFolder);

// Lists a folder in place of the system: for hosts whose media lie on a server with an interface of its own. Called
// on worker threads, on several at a time, and may take as long as it likes.
typedef QVListerAnswer(CALLBACK* QVFolderLister)(LPCWSTR folder, QVAddFolderEntry add, void* context);

// Sets the lister of all directory trees and lists; null removes it. Returns the former one. Any thread.
QVCOMMONCTRL_API QVFolderLister QV_SetFolderLister(QVFolderLister lister);

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
    // Expands and selects the folder. FALSE, selection unchanged, when it does not exist or the folders on the way
    // do not answer within 2 seconds.
    BOOL SetPathName(LPCWSTR path);
    // The selected folder's path; empty for none or for a virtual folder (such as "My Computer"). The root is the
    // user's desktop folder.
    CString GetPathName() const;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    friend class CQVDirTreeImpl;
    class CQVDirTreeImpl* m_pImpl;
};

// The directory tree as the host functions create it: the tree as a window of its own with skinned frame.
class QVCOMMONCTRL_API CQVComboDTBox : public CQVDirTreeCtrl {
    DECLARE_DYNAMIC(CQVComboDTBox)

  public:
    CQVComboDTBox();
    ~CQVComboDTBox() override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

struct FolderEntry;

// A list of one folder's entries: folders first, then files. Enter or a double click opens a folder, backspace the
// one above. In the report view it has the columns name, size and date unless the host has inserted its own.
class QVCOMMONCTRL_API CQVDirListCtrl : public CQVListCtrl {
    DECLARE_DYNAMIC(CQVDirListCtrl)

  public:
    CQVDirListCtrl();
    ~CQVDirListCtrl() override;

    // Shows a folder. FALSE, list unchanged, when it does not exist or does not answer within 2 seconds.
    BOOL SetPathName(LPCWSTR folder);
    // Path of entry `item` (0-based), of the shown folder for -1. FALSE, and `path` empty, when there is
    // none.
    BOOL GetPathName(CString& path, int item) const;

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    void SetUpColumns();
    void InsertEntry(int index, const FolderEntry& entry);
    void RefreshIcons();

    CString m_strFolder;
    HIMAGELIST m_hIcons = nullptr;
};

} // namespace _qv_commonctrl
