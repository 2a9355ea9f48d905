// QVForderImportWnd.h: the small panel of the file dialog that carries the import-folder button.
#pragma once

#include "QVDialogPanel.h"
#include "QVFileDialogDefs.h"

#include <QVButton.h>

namespace _qv_commonwnd {

class CQVFileDialog;

// The file dialog creates it.
class QVCOMMONWND_API CQVForderImportWnd : public CQVDialogPanel {
    DECLARE_DYNAMIC(CQVForderImportWnd)

  public:
    CQVForderImportWnd();
    ~CQVForderImportWnd() override;

    // The dialog that gets WM_QV_IMPORTFORDER when the button is pressed; borrowed. Null: nobody.
    void SetOwnerDlg(CQVFileDialog* pDlg);

    // Width and height of the button in pixels at 96 DPI (90 x 23).
    CSize GetButtonSize() const;

    // Enables the button; the panel starts with it disabled. Ignored before the window exists.
    void EnableImport(BOOL bEnable);

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnBnClickedImport();
    DECLARE_MESSAGE_MAP()

    _qv_commonctrl::CQVButton m_btnImport;
    CQVFileDialog* m_pOwnerDlg;
    CSize m_szButton;
};

} // namespace _qv_commonwnd
