// CToolTipCtrl: a tool tip window.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
  public:
    CToolTipCtrl() = default;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0); // a top-level window owned by the parent
    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    // A tool is a whole control (lpRectTool null), or a client rectangle of pWnd with an id of its own.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    void SetDelayTime(UINT nDelay) {
        SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, static_cast<LPARAM>(nDelay));
    }
    void SetDelayTime(DWORD dwDuration, int iTime) {
        SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    void SetTipBkColor(COLORREF clr) { SendMessage(TTM_SETTIPBKCOLOR, clr); }
    void SetTipTextColor(COLORREF clr) { SendMessage(TTM_SETTIPTEXTCOLOR, clr); }
    void Pop() { SendMessage(TTM_POP); }
    // To be called with each message of the tools' windows, from PreTranslateMessage.
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }

  private:
    void FillInToolInfo(TOOLINFO& ti, const CWnd* pWnd, UINT_PTR nIDTool) const;
};
