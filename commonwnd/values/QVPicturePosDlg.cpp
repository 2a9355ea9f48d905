#include "QVPicturePosDlg.h"

#include "IntegerText.h"
#include "support/DialogRows.h"
#include "module/DictText.h"
#include "QVModule.h"
#include "support/WindowText.h"
#include "res/ResourceIds.h"

#include <QVCommonClass.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVRectTracker;

namespace _qv_commonwnd {

namespace {

// The rectangle tracked last, by whichever dialog.
CRect g_rcLastTracked;

constexpr int kTrackerOption = _qv_extractrl::QVTRACKER_FRAME | _qv_extractrl::QVTRACKER_KEEP_IN_RANGE;

} // namespace

IMPLEMENT_DYNAMIC(CQVPicturePosDlg, CQVDialog)

BEGIN_MESSAGE_MAP(CQVPicturePosDlg, CQVDialog)
    ON_BN_CLICKED(IDOK, &CQVPicturePosDlg::OnBnClickedOk)
    ON_BN_CLICKED(IDC_PICTURE_DEFAULT, &CQVPicturePosDlg::OnBnClickedDef)
    ON_MESSAGE(_qv_extractrl::QVN_TRACKERMOVE, &CQVPicturePosDlg::OnPosChange)
    ON_EN_CHANGE(IDC_PICTURE_X, &CQVPicturePosDlg::OnEnChangeXpos)
    ON_EN_CHANGE(IDC_PICTURE_Y, &CQVPicturePosDlg::OnEnChangeYpos)
END_MESSAGE_MAP()

CQVPicturePosDlg::CQVPicturePosDlg(CWnd* parent)
    : CQVDialog(IDD_PICTUREPOS, parent), m_ptPos(0, 0), m_szRange(0, 0), m_szPicture(0, 0) {
}

CQVPicturePosDlg::~CQVPicturePosDlg() = default;

INT_PTR CQVPicturePosDlg::DoModal() {
    _qv_commonclass::CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

BOOL CQVPicturePosDlg::OnInitDialog() {
    m_bInited = FALSE;
    m_pTracker = nullptr;
    m_XEdit.SubclassDlgItem(IDC_PICTURE_X, this);
    m_YEdit.SubclassDlgItem(IDC_PICTURE_Y, this);
    {
        TemplateTranslation translation;
        CQVDialog::OnInitDialog();
    }
    AlignLabelsWithFields(*this);
    GetDefSize(m_ptPos, 1);
    ShowPos();
    m_pTracker = dynamic_cast<CQVRectTracker*>(GetDlgItem(IDC_PICTURE_TRACKER));
    if (m_pTracker) {
        m_pTracker->m_nOption = kTrackerOption;
        m_pTracker->SetRectRange(CRect(0, 0, m_szRange.cx, m_szRange.cy));
        MoveTracker();
        m_pTracker->m_nTrackerMode = m_nTrackerMode;
        m_pTracker->SetTextStyle(QVTEXT_LABEL);
    }
    m_bInited = TRUE;
    return TRUE;
}

// The place for a default that depends on the picture; there is none: the point stays.
void CQVPicturePosDlg::GetDefSize(CPoint&, int) {
}

// What the dialog writes itself is no input of the user's.
void CQVPicturePosDlg::ShowPos() {
    const BOOL inited = m_bInited;
    m_bInited = FALSE;
    CString text;
    text.Format(L"%d", static_cast<int>(m_ptPos.x));
    SetDlgItemText(IDC_PICTURE_X, text);
    text.Format(L"%d", static_cast<int>(m_ptPos.y));
    SetDlgItemText(IDC_PICTURE_Y, text);
    m_bInited = inited;
}

void CQVPicturePosDlg::MoveTracker() {
    if (m_pTracker)
        m_pTracker->SetTrackRect(m_ptPos, CRect(CPoint(0, 0), m_szPicture));
}

void CQVPicturePosDlg::TellHost() {
    if (m_pfnPosChange)
        m_pfnPosChange(m_pPosChangeData, this);
}

LRESULT CQVPicturePosDlg::OnPosChange(WPARAM, LPARAM) {
    if (!m_pTracker)
        return 1;
    g_rcLastTracked = m_pTracker->GetTrackRect();
    m_ptPos = g_rcLastTracked.TopLeft();
    ShowPos();
    GetDefSize(m_ptPos, 0);
    TellHost();
    return 1;
}

void CQVPicturePosDlg::OnEnChangeXpos() {
    OnTyped(IDC_PICTURE_X, m_ptPos.x);
}

void CQVPicturePosDlg::OnEnChangeYpos() {
    OnTyped(IDC_PICTURE_Y, m_ptPos.y);
}

void CQVPicturePosDlg::OnTyped(int id, LONG& coordinate) {
    if (!m_bInited)
        return;
    coordinate = LeadingInt32(WindowTextOf(GetDlgItem(id)));
    MoveTracker();
    GetDefSize(m_ptPos, 0);
    TellHost();
}

void CQVPicturePosDlg::OnBnClickedDef() {
    m_ptPos = CPoint(0, 0);
    ShowPos();
    TellHost();
    MoveTracker();
}

void CQVPicturePosDlg::OnBnClickedOk() {
    m_ptPos.x = LeadingInt32(WindowTextOf(GetDlgItem(IDC_PICTURE_X)));
    m_ptPos.y = LeadingInt32(WindowTextOf(GetDlgItem(IDC_PICTURE_Y)));
    GetDefSize(m_ptPos, 0);
    CQVDialog::OnOK();
}

void CQVPicturePosDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
