#include "afxdlgs.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<LPCTSTR>(nullptr), pParentWnd) {
}

// The system's dialog ends itself.
void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}
