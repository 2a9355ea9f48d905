#include "afxdlgs.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<UINT>(0), pParentWnd) {}

void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}
