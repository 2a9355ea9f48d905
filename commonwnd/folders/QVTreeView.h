// The system's folder tree in skinned form.
#pragma once

#include <afxwin.h>

namespace _qv_commonwnd {

class CQVTreeView : public CWnd {
  public:
    // Takes the tree over: scroll bars and colours of the skin. FALSE when it is no window of this thread.
    BOOL TakeOver(HWND tree);
    // Gives it back as it was.
    void GiveBack();
    // The skin has changed, or the tree is new.
    void ApplySkin();

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    DECLARE_MESSAGE_MAP()
};

} // namespace _qv_commonwnd
