// The painted frame that is laid over a dialog of the system: ground, caption with its close button, two-colour frame.
#pragma once

#include <QVBaseCtrl.h>
#include <QVCaptionBand.h>

namespace _qv_commonwnd {

// Subclasses the dialog's window. What the two dialogs of the system do not share (figures, colours of their controls,
// further pictures) comes from the derived class. The object may wear one dialog after another.
class CSystemDialogFrame : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
  public:
    explicit CSystemDialogFrame(const _qv_commonctrl::QVCaptionFigures& figures);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    // Takes away what the system has drawn the dialog's frame for, and `further` styles with it. The window keeps its
    // place and size; it draws without its former frame once the system is told (SWP_FRAMECHANGED).
    void StripFrame(DWORD further);

    // What a derived class paints over the ground.
    virtual void PaintMore(CDC& dc);

    CRect Client() const;
    UINT Dpi() const;

    void PreSubclassWindow() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    DECLARE_MESSAGE_MAP()

  private:
    void RepaintClose();
    void RepaintCaption();
    void SendFromPoint(UINT message, WPARAM wParam, CPoint point);

    _qv_commonctrl::CQVCaptionBand m_band;
};

} // namespace _qv_commonwnd
