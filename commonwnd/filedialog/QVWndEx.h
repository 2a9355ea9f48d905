// The frame of the system's file dialog.
#pragma once

#include "support/SystemDialogFrame.h"

#include <functional>

namespace _qv_commonwnd {

// Tells the file dialog of what happens to the frame, and keeps its controls in the skin's colours.
class CQVWndEx : public CSystemDialogFrame {
    DECLARE_DYNAMIC(CQVWndEx)

  public:
    CQVWndEx();

    // Takes the frame over; its styles leave it no frame of its own. FALSE when it cannot be had.
    BOOL TakeOver(HWND frame);

    // Called when the frame is about to be destroyed, while its children still live.
    void SetEndAction(std::function<void()> action) { m_endAction = std::move(action); }

    // Called with each shell view that the frame gets, before it is shown.
    void SetNewViewAction(std::function<void(HWND view)> action) { m_newViewAction = std::move(action); }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    DECLARE_MESSAGE_MAP()

  private:
    std::function<void()> m_endAction;
    std::function<void(HWND view)> m_newViewAction;
};

} // namespace _qv_commonwnd
