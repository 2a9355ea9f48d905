// CComboBoxEx: extended combo box, a combo box with images inside a window of its own.
#pragma once

#include "ComboBox.h"
#include "Edit.h"
#include "ImageList.h"

class AFXFRAME_API CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)
  public:
    CComboBoxEx() = default;
    using CComboBox::DeleteItem;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    // Item index -1 in a COMBOBOXEXITEM: the edit field. Inserting returns the new index, -1 on failure.
    BOOL GetItem(COMBOBOXEXITEM* pCBItem) {
        return static_cast<BOOL>(SendMessage(CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(pCBItem)));
    }
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem) {
        return static_cast<BOOL>(SendMessage(CBEM_SETITEMW, 0, reinterpret_cast<LPARAM>(pCBItem)));
    }
    int InsertItem(const COMBOBOXEXITEM* pCBItem) {
        return static_cast<int>(SendMessage(CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(pCBItem)));
    }
    int DeleteItem(int iIndex) {
        return static_cast<int>(SendMessage(CBEM_DELETEITEM, static_cast<WPARAM>(iIndex)));
    }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(CBEM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
        return static_cast<DWORD>(
            SendMessage(CBEM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwExStyles)));
    }
    BOOL HasEditChanged() { return static_cast<BOOL>(SendMessage(CBEM_HASEDITCHANGED)); }
    CEdit* GetEditCtrl();         // null for a drop-down list
    CComboBox* GetComboBoxCtrl(); // the inner combo box
    CImageList* GetImageList() const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(CBEM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* pImageList);
};
