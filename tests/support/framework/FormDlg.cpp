#include "FormDlg.h"

BEGIN_MESSAGE_MAP(FormDlg, CDialog)
    ON_BN_CLICKED(IDC_GO, &FormDlg::OnGo)
END_MESSAGE_MAP()
