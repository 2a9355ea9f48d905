// QVHeaderCtrl.h: the skinned column headers of a list view.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// The column headers of a list view. Keeps the native behaviour: sizing, dragging, sorting arrows
// (HDF_SORTUP, HDF_SORTDOWN), owner-drawn columns (WM_DRAWITEM to the parent).
class QVCOMMONCTRL_API CQVHeaderCtrl : public CHeaderCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVHeaderCtrl)

  public:
    CQVHeaderCtrl();
    ~CQVHeaderCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc);
    void SetMouseItems(int hot, int pressed);
    int ItemAt(CPoint client) const;

    int m_nHot = -1;
    int m_nPressed = -1;
};

} // namespace _qv_commonctrl
