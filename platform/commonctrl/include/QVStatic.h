// QVStatic.h: skinned static text.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// Wears a STATIC window: texts, rectangles, frames and lines are drawn with the skin; pictures and
// owner-drawn ones stay the system's.
class QVCOMMONCTRL_API CQVStatic : public CStatic, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVStatic)

  public:
    CQVStatic();
    ~CQVStatic() override;

    // Takes a QVTextStyle. There is only the label's, which every static text has: nothing changes.
    void SetTextStyle(int style);
    // Ground by skin colour index; -1 (the default) asks the parent by WM_CTLCOLORSTATIC.
    void SetBkColorIndex(int colorIndex);
    // Text by skin colour index; -1 (the default): QVCLR_TEXT_WINDOW. A disabled text is QVCLR_TEXT_DISABLED.
    void SetTextColorIndex(int colorIndex);

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc, const CRect& client) const;
    void PaintText(CDC* dc, const CRect& client) const;

    int m_nBkColorIndex = -1;
    int m_nTextColorIndex = -1;
};

} // namespace _qv_commonctrl
