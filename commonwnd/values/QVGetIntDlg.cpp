#include "QVGetIntDlg.h"

#include "support/DialogRows.h"
#include "IntegerText.h"
#include "QVModule.h"
#include "support/WindowText.h"
#include "res/ResourceIds.h"

#include <LWSupportAPI.h>
#include <QVCommonClass.h>
#include <QVPaintMemoDC.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

IMPLEMENT_DYNAMIC(CQVGetIntDlg, CQVDialog)

BEGIN_MESSAGE_MAP(CQVGetIntDlg, CQVDialog)
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDOK, &CQVGetIntDlg::OnBnClickedOk)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CQVGetIntDlg::CQVGetIntDlg(CWnd* parent) : CQVDialog(IDD_GETINT, parent) {
}

CQVGetIntDlg::~CQVGetIntDlg() {
    delete m_pEdit;
}

INT_PTR CQVGetIntDlg::DoModal() {
    _qv_commonclass::CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

BOOL CQVGetIntDlg::OnInitDialog() {
    m_pEdit = new _qv_extractrl::CQVEditEx;
    m_pEdit->SubclassDlgItem(IDC_VALUE_EDIT, this);
    CQVDialog::OnInitDialog();
    UseLabelStyle(GetDlgItem(IDC_VALUE_LABEL));
    UseLabelStyle(GetDlgItem(IDC_VALUE_UNIT));
    if (m_nType == QVGETINT_TIMECODE)
        CreateTimecodeEdit();
    ShowTexts();
    AlignLabelsWithFields(*this);
    AlignRow(*this, IDC_VALUE_LABEL, {IDC_VALUE_UNIT});
    MakeRoomForLabels(*this);
    return TRUE;
}

void CQVGetIntDlg::CreateTimecodeEdit() {
    constexpr int kInsetPx = 1;
    const int inset = QV_ScalePx(m_hWnd, kInsetPx);
    CRect place = ChildRect(*this, IDC_VALUE_EDIT);
    place.DeflateRect(0, inset);
    m_TimeCodeEdit.Create(WS_CHILD | WS_VISIBLE, place, this, IDC_VALUE_TIMECODE);
    m_TimeCodeEdit.ModifyStyleEx(0, WS_EX_CLIENTEDGE | WS_EX_NOPARENTNOTIFY);
    m_TimeCodeEdit.ModifyStyle(0, WS_TABSTOP);
    m_TimeCodeEdit.SetFont(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd)));
    m_TimeCodeEdit.SetFrame(m_nValue, FALSE);
    m_strIncludeKey.Empty();
    m_pEdit->ShowWindow(SW_HIDE);
    m_TimeCodeEdit.SetWindowPos(m_pEdit, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CQVGetIntDlg::ShowTexts() {
    if (!m_strTitle.IsEmpty())
        SetWindowText(m_strTitle);
    if (!m_strLabel.IsEmpty())
        SetDlgItemText(IDC_VALUE_LABEL, m_strLabel);
    if (!m_strUnit.IsEmpty())
        SetDlgItemText(IDC_VALUE_UNIT, m_strUnit);
    if (!m_strIncludeKey.IsEmpty())
        m_pEdit->SetIncludeKey(m_strIncludeKey);
    CString text;
    text.Format(L"%I64d", m_nValue);
    m_pEdit->SetWindowText(text);
    SetDlgItemText(IDOK, LWLoadString(L"IDS_COMMON_OK"));
    SetDlgItemText(IDCANCEL, LWLoadString(L"IDS_COMMON_CANCEL"));
}

void CQVGetIntDlg::OnBnClickedOk() {
    if (m_nType == QVGETINT_TIMECODE) {
        m_nValue = m_TimeCodeEdit.GetFrame();
    } else if (m_nType == QVGETINT_NUMBER) {
        m_nValue = LeadingInteger(WindowTextOf(m_pEdit));
        if (m_nValue < m_nMin || m_nValue > m_nMax)
            return;
    }
    CDialog::OnOK();
}

// The timecode edit has no frame of its own in the skin's two tones; the dialog draws it round the edit.
void CQVGetIntDlg::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_WINDOW);
    if (!m_TimeCodeEdit.GetSafeHwnd())
        return;
    CRect frame = ChildRect(*this, IDC_VALUE_TIMECODE);
    for (const int color : {QVCLR_EDIT_FRAME_INNER, QVCLR_EDIT_FRAME_OUTER}) {
        frame.InflateRect(1, 1);
        dc.Draw3dRect(frame, QV_GetSysColor(color), QV_GetSysColor(color));
    }
}

void CQVGetIntDlg::OnDestroy() {
    if (m_pEdit) {
        m_pEdit->UnsubclassWindow();
        delete m_pEdit;
        m_pEdit = nullptr;
    }
    CQVDialog::OnDestroy();
}

void CQVGetIntDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
