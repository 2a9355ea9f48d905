#include "QVFilePathShowTip.h"

#include "res/ResourceIds.h"
#include "support/WindowText.h"

#include <LWSupportAPI.h>
#include <QVListControls.h>
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
    ON_NOTIFY(LVN_DELETEALLITEMS, IDC_MISSINGFILES_LIST, &CQVFilePathShowTip::OnListEmptied)
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
    if (auto* list = dynamic_cast<CQVListCtrl*>(GetDlgItem(IDC_MISSINGFILES_LIST))) {
        list->InsertColumn(0, LWLoadString(L"IDS_COMMON_FILENAME"), LVCFMT_LEFT,
                           QV_ScalePx(m_hWnd, kPathColumnPx));
        list->AppendRows(m_aFiles);
    }
    return TRUE;
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

// Nobody wants to hear of each of a hundred thousand rows, whether it comes or goes.
LRESULT CQVFilePathShowTip::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* const header = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam) : nullptr;
    if (header && header->code == LVN_INSERTITEM)
        return 0;
    return CQVDialog::WindowProc(message, wParam, lParam);
}

void CQVFilePathShowTip::OnListEmptied(NMHDR*, LRESULT* result) {
    *result = TRUE; // without telling of each row
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
