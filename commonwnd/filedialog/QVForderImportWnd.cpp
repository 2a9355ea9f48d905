#include "QVForderImportWnd.h"

#include "QVFileDialog.h"

#include <LWSupportAPI.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr int kImportButtonId = 1001;
constexpr int kButtonWidthPx = 90;
constexpr int kButtonHeightPx = 23;

} // namespace

IMPLEMENT_DYNAMIC(CQVForderImportWnd, CWnd)

BEGIN_MESSAGE_MAP(CQVForderImportWnd, CQVDialogPanel)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_BN_CLICKED(kImportButtonId, &CQVForderImportWnd::OnBnClickedImport)
END_MESSAGE_MAP()

CQVForderImportWnd::CQVForderImportWnd() : m_pOwnerDlg(nullptr), m_szButton(kButtonWidthPx, kButtonHeightPx) {
}

CQVForderImportWnd::~CQVForderImportWnd() = default;

void CQVForderImportWnd::SetOwnerDlg(CQVFileDialog* pDlg) {
    m_pOwnerDlg = pDlg;
}

CSize CQVForderImportWnd::GetButtonSize() const {
    return m_szButton;
}

void CQVForderImportWnd::EnableImport(BOOL bEnable) {
    if (m_btnImport.GetSafeHwnd())
        m_btnImport.EnableWindow(bEnable);
}

int CQVForderImportWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CQVDialogPanel::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (m_btnImport.Create(LWLoadString(L"IDS_CAPTURERENDER_IMPORTFOLDER"), WS_CHILD | WS_VISIBLE,
                           CRect(0, 0, 0, 0), this, kImportButtonId)) {
        m_btnImport.ModifyStyle(0, WS_TABSTOP);
        m_btnImport.SetFont(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(GetSafeHwnd())));
        m_btnImport.EnableWindow(FALSE);
    }
    ModifyStyleEx(0, WS_EX_CONTROLPARENT); // the tab key goes through the dialog's panels
    AttachSkin(this);
    return 0;
}

void CQVForderImportWnd::OnSize(UINT nType, int cx, int cy) {
    CQVDialogPanel::OnSize(nType, cx, cy);
    const UINT dpi = QV_GetWindowDpi(GetSafeHwnd());
    if (m_btnImport.GetSafeHwnd())
        m_btnImport.MoveWindow(0, 0, QV_ScaleForDpi(m_szButton.cx, dpi), QV_ScaleForDpi(m_szButton.cy, dpi));
}

void CQVForderImportWnd::OnBnClickedImport() {
    if (m_pOwnerDlg)
        m_pOwnerDlg->SendMessage(WM_QV_IMPORTFORDER, 0, 0);
}

} // namespace _qv_commonwnd
