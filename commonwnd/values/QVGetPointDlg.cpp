#include "QVGetPointDlg.h"

#include "support/DialogRows.h"
#include "module/DictText.h"
#include "QVModule.h"
#include "res/ResourceIds.h"

#include <QVCommonClass.h>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVTimeCodeEditEx;

namespace _qv_commonwnd {

IMPLEMENT_DYNAMIC(CQVGetPointDlg, CQVDialog)

BEGIN_MESSAGE_MAP(CQVGetPointDlg, CQVDialog)
    ON_BN_CLICKED(IDOK, &CQVGetPointDlg::OnBnClickedOk)
    ON_MESSAGE(_qv_extractrl::QVN_EDITNOTIFY, &CQVGetPointDlg::OnTimeCodeChange)
END_MESSAGE_MAP()

CQVGetPointDlg::CQVGetPointDlg(CWnd* parent) : CQVDialog(IDD_GETPOINT, parent) {
}

CQVGetPointDlg::~CQVGetPointDlg() = default;

void CQVGetPointDlg::SetFrameRate(TimecodeFrameRate rate) {
    m_FrameRate = rate;
}

INT_PTR CQVGetPointDlg::DoModal() {
    _qv_commonclass::CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

BOOL CQVGetPointDlg::OnInitDialog() {
    m_pTimeCodeEdit = nullptr;
    m_pFrameEdit = nullptr;
    {
        TemplateTranslation translation;
        CQVDialog::OnInitDialog();
    }
    AlignLabelsWithFields(*this);
    MakeRoomForLabels(*this);
    m_pTimeCodeEdit = TakeEdit(IDC_VALUE_EDIT);
    m_pFrameEdit = TakeEdit(IDC_POINT_FRAMES);
    if (!m_pTimeCodeEdit || !m_pFrameEdit)
        return TRUE;
    m_pFrameEdit->SetEditMode(_qv_extractrl::QVTIMECODE_FRAMES);
    for (CQVTimeCodeEditEx* edit : {m_pTimeCodeEdit, m_pFrameEdit}) {
        edit->SetFrameRate(m_FrameRate);
        edit->SetFrame(m_nFrame, TRUE);
    }
    return TRUE;
}

CQVTimeCodeEditEx* CQVGetPointDlg::TakeEdit(int id) {
    return dynamic_cast<CQVTimeCodeEditEx*>(GetDlgItem(id));
}

LRESULT CQVGetPointDlg::OnTimeCodeChange(WPARAM code, LPARAM sender) {
    if (!sender)
        return 1;
    if (code == _qv_extractrl::QVEDIT_ENTER) {
        PostMessage(WM_COMMAND, IDOK, 0);
        return 0;
    }
    if (code != _qv_extractrl::QVEDIT_CHANGED || !m_pTimeCodeEdit || !m_pFrameEdit)
        return 0;
    // A field that is set tells so in turn; the other one then holds that very frame and stays silent.
    const auto* changed = reinterpret_cast<CWnd*>(sender);
    if (changed == m_pTimeCodeEdit)
        m_pFrameEdit->SetFrame(m_pTimeCodeEdit->GetFrame(), TRUE);
    else if (changed == m_pFrameEdit)
        m_pTimeCodeEdit->SetFrame(m_pFrameEdit->GetFrame(), TRUE);
    return 0;
}

void CQVGetPointDlg::OnBnClickedOk() {
    if (m_pTimeCodeEdit)
        m_nFrame = m_pTimeCodeEdit->GetFrame();
    CQVDialog::OnOK();
}

void CQVGetPointDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
