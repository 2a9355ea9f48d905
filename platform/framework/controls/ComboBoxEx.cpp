// CComboBoxEx: creation, the controls inside, the image list.
#include "handles/HandleOf.h"
#include "afx/ComboBoxEx.h"

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOXEXW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CEdit* CComboBoxEx::GetEditCtrl() {
    return static_cast<CEdit*>(FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL))));
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() {
    return static_cast<CComboBox*>(FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETCOMBOCONTROL))));
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        SendMessage(CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(HandleOf(pImageList)))));
}
