// QVEdit.h: skinned edit field: skin ground and text, a two-line frame, accent frame while it has the focus.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// Wears an EDIT window of any style. A border (WS_BORDER or WS_EX_CLIENTEDGE) is replaced by the skin's
// frame; without one, and inside a combo box, the field stays frameless. The text of a single-line field
// stands in the middle of its height. Scroll bars of a multi-line field are skinned. The parent must reflect
// WM_CTLCOLOR* to the field, as every framework window does. Ctrl+A selects the whole text.
class QVCOMMONCTRL_API CQVEdit : public CEdit, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVEdit)

  public:
    CQVEdit();
    ~CQVEdit() override;

    // Tells the user that the field does not take what was typed or pasted: a sound, and the frame in the
    // colour of a meter's clip mark until the next key, click or text, or until the focus leaves.
    void ShowRefused();

  protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    enum class FrameStep { None, Due, Done };

    void TakeOverFrame();
    void OnNcCalc(RECT& rect) const;
    void PaintFrame();
    void PaintDisabled(CDC* dc, const CRect& client) const;
    void FollowMouse(UINT message);
    void EndRefusal(UINT message);
    void AfterMessage(UINT message, LRESULT result);
    int GroundColor() const;
    int TextColor() const;
    bool IsReadOnly() const;

    FrameStep m_frameStep = FrameStep::None;
    bool m_bFramed = false;
    bool m_bHot = false;
    bool m_bRefused = false; // what was typed last was not taken
};

} // namespace _qv_commonctrl
