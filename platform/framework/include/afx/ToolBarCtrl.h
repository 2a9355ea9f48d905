// CToolBarCtrl: a tool bar control. Buttons by command id, or by index from 0 where so named.
#pragma once

#include "ImageList.h"
#include "Wnd.h"

class AFXFRAME_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
  public:
    CToolBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
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
