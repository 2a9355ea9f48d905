// QVListCtrl.h: a skinned list view.
#pragma once

#include "QVSkin.h"
#include "QVHeaderCtrl.h"
#include "QVSetupMoment.h"

namespace _qv_commonctrl {

// A list view with skinned rows, header and scroll bars, in every view. The rows are drawn by way of its
// custom-draw notification, which a framework parent reflects; below another parent the rows get the skin's
// colours only.
class QVCOMMONCTRL_API CQVListCtrl : public CListCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVListCtrl)

  public:
    CQVListCtrl();
    ~CQVListCtrl() override;

    // Appends a row for each text (first column, no picture) and repaints once, in far less time than row by
    // row. FALSE without a window, and when the control has no memory for one of them: the rows before it
    // stay. User-interface thread.
    BOOL AppendRows(const CStringArray& texts);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    void SetUp();
    void ApplyColors();
    void TakeHeader();

    CQVHeaderCtrl m_header;
    QVSetupMoment m_setup;
};

// Answers a list view's custom-draw notification: paints its items with the skin. For the parent of a list
// that is no CQVListCtrl, such as one inside a window of the system. User-interface thread.
QVCOMMONCTRL_API LRESULT QV_PaintListItem(NMLVCUSTOMDRAW& draw);

} // namespace _qv_commonctrl
