// CCommonDialog: OK and cancel are the system's.
#include "afx/CommonDialog.h"

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
