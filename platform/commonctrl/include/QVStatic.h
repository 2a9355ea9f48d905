// QVStatic.h: skinned static text.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

class QVCOMMONCTRL_API CQVStatic : public CStatic, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVStatic)

  public:
    CQVStatic();
    ~CQVStatic() override;

    // Draws the text as a QVTextStyle says (colour and font).
    void SetTextStyle(int style);
    // Ground by skin colour index; -1 (the default) asks the parent by WM_CTLCOLORSTATIC.
    void SetBkColorIndex(int colorIndex);
    // Text by skin colour index; -1: as the text style says.
    void SetTextColorIndex(int colorIndex);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc, const CRect& client) const;
    void PaintText(CDC* dc, const CRect& client) const;

    int m_nTextStyle = QVTEXT_LABEL;
    int m_nBkColorIndex = -1;
    int m_nTextColorIndex = -1;
};

} // namespace _qv_commonctrl
