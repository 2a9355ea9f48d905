// The shell's file list inside the file dialog.
#pragma once

#include "ListAnswers.h"

#include <QVBaseCtrl.h>
#include <QVListControls.h>

#include <functional>
#include <vector>

namespace _qv_commonwnd {

class CQVListView : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVListView)

  public:
    CQVListView();
    ~CQVListView() override;

    // The object that wears the list's header as soon as there is one; borrowed.
    void SetHeaderObject(_qv_commonctrl::CQVHeaderCtrl* header) { m_pHeader = header; }

    // The list's own procedure, below everything that was put before it: messages that neither move nor resize
    // anything go straight there. Null: none do.
    void SetListProcedure(WNDPROC procedure) { m_pfnList = procedure; }

    // Called once after items have been selected or unselected, however many.
    void SetSelectionAction(std::function<void()> action) { m_selectionAction = std::move(action); }

    // Names and pictures that the list's owner has answered; borrowed, null for none. They are forgotten when the list
    // is told of other items.
    void SetAnswers(CListAnswers* answers) { m_pAnswers = answers; }

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg LRESULT OnListSkin(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelectionSettled(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    void ApplyColors();
    void TakeHeader();
    void NoteItemChange(const NMLISTVIEW& change);
    LRESULT OnItemMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void ForgetAnswers();
    std::vector<CPoint> IconDotsAt(CDC& dc, int y);

    _qv_commonctrl::CQVHeaderCtrl* m_pHeader = nullptr;
    WNDPROC m_pfnList = nullptr;
    std::function<void()> m_selectionAction;
    CListAnswers* m_pAnswers = nullptr;
    bool m_bSelectionAsked = false; // a look at the selection is due
};

} // namespace _qv_commonwnd
