// ButtonFace.h: what a skinned button looks like, and the size that this takes.
#pragma once

#include "ControlSupport.h"
#include "HotTracker.h"
#include "paint/StateStrip.h"

namespace _qv_commonctrl {

class ButtonFace {
  public:
    enum class Kind { Push, Check, Radio, Group, Native };

    explicit ButtonFace(const CWnd& button) : m_button(button) {}

    Kind GetKind() const;
    void Paint(CDC* dc, const CRect& client) const;
    // The size that image, or text and margins, ask for.
    CSize NaturalSize() const;
    void ApplyAutoSize() const;
    // Keeps a group box from painting over the controls that stand in it.
    void ExcludeSiblings(CDC* dc) const;

    StateStrip image;
    HotTracker hot;
    int pushCheck = 0;
    bool autoSize = false;

  private:
    HWND Wnd() const { return m_button.m_hWnd; }
    DWORD Style() const { return WindowStyle(Wnd()); }
    int Px(int px96) const { return QV_ScalePx(Wnd(), px96); }
    bool IsFocused() const { return (::SendMessageW(Wnd(), BM_GETSTATE, 0, 0) & BST_FOCUS) != 0; }
    bool IsDefault() const { return (Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON; }
    ControlState State() const;
    int CheckState() const;
    UINT TextFormat() const;

    void PaintPush(CDC* dc, const CRect& client) const;
    void PaintPushContent(CDC* dc, CRect rect, ControlState state) const;
    bool PaintNativeImage(CDC* dc, const CRect& rect) const;
    void PaintCheck(CDC* dc, const CRect& client) const;
    void PaintGroup(CDC* dc, const CRect& client) const;

    const CWnd& m_button;
};

} // namespace _qv_commonctrl
