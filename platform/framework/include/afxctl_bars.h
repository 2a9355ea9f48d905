// Progress bar, slider, tool tip, tool bar control.
#pragma once

#include "afximagelist.h"
#include "afxwnd_.h"

class AFXFRAME_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
  public:
    CProgressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
    int OffsetPos(int nPos) { return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos))); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep))); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
    COLORREF SetBkColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBKCOLOR, 0, static_cast<LPARAM>(clr)));
    }
    COLORREF SetBarColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(PBM_SETBARCOLOR, 0, static_cast<LPARAM>(clr)));
    }
};

class AFXFRAME_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)
  public:
    CSliderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(TRACKBAR_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return static_cast<int>(SendMessage(TBM_GETRANGEMIN)); }
    int GetRangeMax() const { return static_cast<int>(SendMessage(TBM_GETRANGEMAX)); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SendMessage(TBM_SETRANGEMIN, FALSE, nMin);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    int SetLineSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, nSize)); }
    int SetPageSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, nSize)); }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
};

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

class AFXFRAME_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
  public:
    CToolBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    // Buttons by command id, or by index from 0 where so named.
    int GetButtonCount() const { return Ask(TB_BUTTONCOUNT); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const { return Ask(TB_GETBUTTON, nIndex, lpButton); }
    BOOL GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const { return Ask(TB_GETBUTTONINFOW, nID, ptbbi) >= 0; }
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) { return Ask(TB_SETBUTTONINFOW, nID, ptbbi); }
    BOOL AddButtons(int nNumButtons, const TBBUTTON* lpButtons) {
        return Ask(TB_ADDBUTTONSW, nNumButtons, lpButtons);
    }
    BOOL InsertButton(int nIndex, const TBBUTTON* lpButton) {
        return Ask(TB_INSERTBUTTONW, nIndex, lpButton);
    }
    BOOL DeleteButton(int nIndex) { return Ask(TB_DELETEBUTTON, nIndex); }
    UINT CommandToIndex(UINT nID) const { return static_cast<UINT>(SendMessage(TB_COMMANDTOINDEX, nID)); }
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) {
        return Ask(TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0));
    }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return Ask(TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0)); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return Ask(TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0)); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return Ask(TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0)); }
    BOOL IsButtonEnabled(int nID) const { return Ask(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return Ask(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return Ask(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return Ask(TB_ISBUTTONHIDDEN, nID); }
    int GetState(int nID) const { return Ask(TB_GETSTATE, nID); }
    BOOL SetState(int nID, UINT nState) { return Ask(TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return Ask(TB_GETITEMRECT, nIndex, lpRect); }
    BOOL GetRect(int nID, LPRECT lpRect) const { return Ask(TB_GETRECT, nID, lpRect); }
    int HitTest(LPPOINT ppt) const { return Ask(TB_HITTEST, 0, ppt); }
    int GetHotItem() const { return Ask(TB_GETHOTITEM); }
    int SetHotItem(int nHot) { return Ask(TB_SETHOTITEM, nHot); }
    BOOL SetButtonSize(CSize size) { return Ask(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    DWORD GetButtonSize() const { return static_cast<DWORD>(SendMessage(TB_GETBUTTONSIZE)); }
    BOOL SetBitmapSize(CSize size) { return Ask(TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    void AutoSize() { SendMessage(TB_AUTOSIZE); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(TB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExStyle) {
        return static_cast<DWORD>(SendMessage(TB_SETEXTENDEDSTYLE, 0, static_cast<LPARAM>(dwExStyle)));
    }
    CImageList* GetImageList() const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TB_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* pImageList);
    // The text of a button by command id; empty when there is none.
    CString GetString(int nID) const;

  private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
    int Ask(UINT message, int wParam, const void* p) const {
        return Ask(message, wParam, reinterpret_cast<LPARAM>(p));
    }
};
