// QVBaseCtrl.h: what every skinned control shares: it is told when the skin changes.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// Sent (never posted) to every skinned window on a change of skin; wParam and lParam 0. The value is from
// RegisterWindowMessageW, so it never meets a private message of a host.
QVCOMMONCTRL_API UINT QV_GetSkinChangeMessage();

// A mix-in base beside a framework window class:
//
//     class CMyCtrl : public CWnd, public CQVBaseCtrl { ... };
//     AttachSkin(this) once the window exists (OnCreate, PreSubclassWindow)
//
// The object leaves the list of skinned windows when it dies or DetachSkin is called. User-interface thread.
class QVCOMMONCTRL_API CQVBaseCtrl {
  public:
    CQVBaseCtrl();
    CQVBaseCtrl(const CQVBaseCtrl&) = delete;
    CQVBaseCtrl& operator=(const CQVBaseCtrl&) = delete;
    virtual ~CQVBaseCtrl();

    // Enters the object, with the window it stands for, into the list of skinned windows. Null leaves the
    // list.
    void AttachSkin(CWnd* wnd);
    void DetachSkin();
    CWnd* GetSkinWnd() const { return m_pSkinWnd; }

    // The skin has changed: colours, fonts and images read before are void. `reason` is 0; `wnd` is the
    // window the object was attached with. The base sets a font of the skin that was noted anew and
    // invalidates the window with its frame.
    virtual void OnSkinChange(UINT reason, HWND wnd);

  protected:
    // To be called with the font of each WM_SETFONT: remembers which of the skin's fonts it is, if any, since
    // the handle is void after a change of skin.
    void NoteSkinFont(HFONT font);
    // AttachSkin, and NoteSkinFont for the font that the window has.
    void AttachSkinAndFont(CWnd* wnd);

  private:
    CWnd* m_pSkinWnd = nullptr;
    int m_nFontIndex = -1; // -1: a font of somebody else
};

} // namespace _qv_commonctrl
