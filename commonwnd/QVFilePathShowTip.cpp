#include "QVFilePathShowTip.h"

#include "WindowText.h"
#include "res/ResourceIds.h"

#include <LWSupportAPI.h>
#include <QVReplaceWnd.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

constexpr int kPathColumnPx = 1000; // at 96 DPI

} // namespace

IMPLEMENT_DYNAMIC(CQVFilePathShowTip, CQVDialog)

BEGIN_MESSAGE_MAP(CQVFilePathShowTip, CQVDialog)
    ON_WM_ERASEBKGND()
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDOK, &CQVFilePathShowTip::OnBnClickedOk)
    ON_BN_CLICKED(IDCANCEL, &CQVFilePathShowTip::OnBnClickedCancel)
END_MESSAGE_MAP()

CQVFilePathShowTip::CQVFilePathShowTip(CWnd* parent) : CQVDialog(IDD_MISSINGFILES, parent) {
}

CQVFilePathShowTip::~CQVFilePathShowTip() = default;

void CQVFilePathShowTip::SetFile(CStringArray& files) {
    m_aFiles.Copy(files);
}

BOOL CQVFilePathShowTip::OnInitDialog() {
    CQVDialog::OnInitDialog();
    SetWindowText(LWLoadString(L"IDS_CAPTURERENDER_TIP"));
    if (auto* list = dynamic_cast<CListCtrl*>(GetDlgItem(IDC_MISSINGFILES_LIST)))
        FillList(*list);
    return TRUE;
}

// Neither the list's own scroll bars nor the skin's are worked out anew with every row.
void CQVFilePathShowTip::FillList(CListCtrl& list) {
    list.InsertColumn(0, LWLoadString(L"IDS_COMMON_FILENAME"), LVCFMT_LEFT,
                      QV_ScalePx(m_hWnd, kPathColumnPx));
    const int count = static_cast<int>(m_aFiles.GetSize());
    QV_UnReplaceWnd(list);
    list.SetRedraw(FALSE);
    list.SetItemCount(count);
    for (int i = 0; i < count; ++i)
        list.InsertItem(i, m_aFiles[i]);
    list.SetRedraw(TRUE);
    QV_ReplaceWnd(list);
}

// The list has no frame of its own.
BOOL CQVFilePathShowTip::OnEraseBkgnd(CDC* dc) {
    const BOOL erased = CQVDialog::OnEraseBkgnd(dc);
    CRect frame = ChildRect(*this, IDC_MISSINGFILES_LIST);
    if (!frame.IsRectEmpty()) {
        frame.InflateRect(1, 1);
        dc->Draw3dRect(frame, QV_GetSysColor(QVCLR_LIST_FRAME), QV_GetSysColor(QVCLR_LIST_FRAME));
    }
    return erased;
}

void CQVFilePathShowTip::OnDestroy() {
    CQVDialog::OnDestroy();
    m_aFiles.RemoveAll();
}

void CQVFilePathShowTip::OnBnClickedOk() {
    CDialog::OnOK();
}

void CQVFilePathShowTip::OnBnClickedCancel() {
    CDialog::OnCancel();
}

void CQVFilePathShowTip::DoDataExchange(CDataExchange* dx) {
    CQVDialog::DoDataExchange(dx);
}

void CQVFilePathShowTip::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
