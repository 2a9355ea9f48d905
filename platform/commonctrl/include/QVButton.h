// QVButton.h: skinned push button, check box, radio button and group box.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// Draws a BUTTON window of any documented style with the skin, keeping the system's behaviour (states,
// keyboard, BM_* messages, notifications). A push button can carry a strip of state images and a check state
// of its own.
class QVCOMMONCTRL_API CQVButton : public CButton, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVButton)

  public:
    CQVButton();
    ~CQVButton() override;

    // Shows the image file in place of the text. `states` is a set of QVImageStates: which states the strip
    // holds, from left to right; a state that is missing uses the normal one. FALSE, and the text stays, when
    // the image cannot be loaded. The path is read again when the skin changes.
    BOOL SetImageList(LPCWSTR path, int states);

    // Check state of a push button (0 or 1): drawn as a latched button; a click does not change it. For check
    // boxes and radio buttons these are BM_SETCHECK and BM_GETCHECK, and those messages serve push buttons,
    // too.
    void SetCheck(int check);
    int GetCheck() const;

    // TRUE: the button takes the size of its image, or of its text and margins (narrow ones for a push-like
    // check box), now and on each change of them.
    void SetAutoSize(BOOL enable);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    BOOL HandleCheckOfPushButton(UINT message, WPARAM wParam, LRESULT& result);
    void OnSkinPaint(WPARAM wParam);
    void AfterChange(UINT message, WPARAM wParam);

    class ButtonFace* m_pFace;
};

} // namespace _qv_commonctrl
