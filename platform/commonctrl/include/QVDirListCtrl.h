// QVDirListCtrl.h: a list of a folder's entries.
#pragma once

#include "QVListCtrl.h"

namespace _qv_commonctrl {

// A list of one folder's entries: folders first, then files. Enter or a double click opens a folder,
// backspace the one above. In the report view it has the columns name, size and date unless the host has
// inserted its own.
class QVCOMMONCTRL_API CQVDirListCtrl : public CQVListCtrl {
    DECLARE_DYNAMIC(CQVDirListCtrl)

  public:
    CQVDirListCtrl();
    ~CQVDirListCtrl() override;

    // Shows a folder. FALSE, list unchanged, when it does not exist or nothing of it is known within 2 seconds. A large
    // folder is shown as soon as there are rows, and is filled while it is read.
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
    void RefreshIcons();

    CString m_strFolder;
    HIMAGELIST m_hIcons = nullptr;
    class DirListRows* m_pRows;
};

} // namespace _qv_commonctrl
