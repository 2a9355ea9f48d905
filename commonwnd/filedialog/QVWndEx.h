// The frame of the system's file dialog: ground, painted caption with its close button, two-colour frame.
#pragma once

#include <QVBaseCtrl.h>
#include <QVCaptionBand.h>

#include <functional>

namespace _qv_commonwnd {

// Takes the system dialog's frame over once its styles leave it no frame of its own.
class CQVWndEx : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVWndEx)

  public:
    CQVWndEx();
    ~CQVWndEx() override;

    // Called when the frame is about to be destroyed, while its children still live.
    void SetEndAction(std::function<void()> action) { m_endAction = std::move(action); }

    // Called with each shell view that the frame gets, before it is shown.
    void SetNewViewAction(std::function<void(HWND view)> action) { m_newViewAction = std::move(action); }

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    DECLARE_MESSAGE_MAP()

  private:
    CRect Area() const;
    UINT Dpi() const;
    void RepaintClose();
    void RepaintCaption();

    _qv_commonctrl::CQVCaptionBand m_band;
    std::function<void()> m_endAction;
    std::function<void(HWND view)> m_newViewAction;
};

} // namespace _qv_commonwnd
