// The skinned frame that lies over the system's browse-for-folder dialog.
#pragma once

#include "QVTreeView.h"
#include "support/SystemDialogFrame.h"

#include <QVButton.h>
#include <QVStatic.h>

#include <memory>

namespace _qv_commonwnd {

// Not a window until TakeOver; again none when the dialog has closed, and ready for the next one then.
class CQVPathBrowseWnd : public CSystemDialogFrame {
  public:
    CQVPathBrowseWnd();

    // Copies of a chooser share one object: it dies with the last of them.
    void Share() { ++m_nOwners; }
    void Drop();

    // Lays itself over the system's dialog, which is still hidden. Controls that the dialog lacks are left out.
    void TakeOver(HWND dialog);

    void OnSkinChange(UINT reason, HWND wnd) override;

    int m_bShowNewFolder = 1; // whether the button that makes a folder is shown

  protected:
    void PaintMore(CDC& dc) override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

  private:
    ~CQVPathBrowseWnd() override; // by Drop

    void TakeControls();
    void TakeTree();
    void ApplyFonts();
    void LayOut();
    void GiveControlsBack();

    int m_nOwners = 1;
    _qv_commonctrl::CQVButton m_btnOk;
    _qv_commonctrl::CQVButton m_btnCancel;
    _qv_commonctrl::CQVButton m_btnNewFolder;
    _qv_commonctrl::CQVStatic m_stcTitle;
    std::unique_ptr<CQVTreeView> m_pTreeView;
    HWND m_hTreeHost = nullptr; // the window that holds the tree, or the tree itself
};

} // namespace _qv_commonwnd
