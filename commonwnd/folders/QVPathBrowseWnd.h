// The skinned frame that lies over the system's browse-for-folder dialog.
#pragma once

#include "QVTreeView.h"

#include <QVButton.h>
#include <QVCaptionBand.h>
#include <QVStatic.h>

#include <memory>

namespace _qv_commonwnd {

// Not a window until TakeOver; again none when the dialog has closed, and ready for the next one then.
class CQVPathBrowseWnd : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
  public:
    CQVPathBrowseWnd();

    // Copies of a chooser share one object: it dies with the last of them.
    void Share() { ++m_nOwners; }
    void Drop();

    // Lays itself over the system's dialog, which is still hidden. Controls that the dialog lacks are left out.
    void TakeOver(HWND dialog);

    void OnSkinChange(UINT reason, HWND wnd) override;

    int m_bCloseHot = 0;      // the mouse is over the close button
    int m_bShowNewFolder = 1; // whether the button that makes a folder is shown

  protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

  private:
    ~CQVPathBrowseWnd() override; // by Drop

    void StripFrame();
    void TakeControls();
    void TakeTree();
    void LayOut();
    void ApplyFonts();
    void GiveControlsBack();
    void LoadCloseImage();
    void SetCloseHot(bool hot);
    void InvalidateClose();
    void InvalidateCaption();
    CRect Client() const;
    UINT Dpi() const;

    int m_nOwners = 1;
    _qv_commonctrl::CQVCaptionBand m_band;
    _qv_commonctrl::CQVSkinImage* m_pCloseImage = nullptr; // keeps the band's image loaded
    _qv_commonctrl::CQVButton m_btnOk;
    _qv_commonctrl::CQVButton m_btnCancel;
    _qv_commonctrl::CQVButton m_btnNewFolder;
    _qv_commonctrl::CQVStatic m_stcTitle;
    std::unique_ptr<CQVTreeView> m_pTreeView;
    HWND m_hTreeHost = nullptr; // the window that holds the tree, or the tree itself
};

} // namespace _qv_commonwnd
