// CHeaderCtrl: the header of a list view. Columns from 0, -1 for none; sizes in pixels.
#pragma once

#include "ImageList.h"
#include "Wnd.h"

class AFXFRAME_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
  public:
    CHeaderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_HEADERW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetItemCount() const { return static_cast<int>(SendMessage(HDM_GETITEMCOUNT)); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const { return Item(HDM_GETITEMW, nPos, pHeaderItem); }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) { return Item(HDM_SETITEMW, nPos, pHeaderItem); }
    int InsertItem(int nPos, HDITEM* phdi) { return Item(HDM_INSERTITEMW, nPos, phdi); }
    BOOL DeleteItem(int nPos) {
        return static_cast<BOOL>(SendMessage(HDM_DELETEITEM, static_cast<WPARAM>(nPos)));
    }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return Item(HDM_GETITEMRECT, nIndex, lpRect); }
    int OrderToIndex(int nOrder) const {
        return static_cast<int>(SendMessage(HDM_ORDERTOINDEX, static_cast<WPARAM>(nOrder)));
    }
    BOOL GetOrderArray(LPINT piArray, int iCount = -1); // -1: all columns
    BOOL SetOrderArray(int iCount, LPINT piArray) { return Item(HDM_SETORDERARRAY, iCount, piArray); }
    int HitTest(LPHDHITTESTINFO phdhti) { return Item(HDM_HITTEST, 0, phdhti); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return Item(HDM_LAYOUT, 0, pHeaderLayout); }
    CImageList* GetImageList() const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* pImageList);
    virtual void DrawItem(LPDRAWITEMSTRUCT) {} // for owner-drawn columns

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  private:
    BOOL Item(UINT message, int nPos, void* p) const {
        return static_cast<BOOL>(
            SendMessage(message, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(p)));
    }
};
