#include "QVSafeColorDlg.h"

#include "LuminanceUnits.h"
#include "res/ResourceIds.h"

#include <QVSkin.h>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVNumberEditEx;

namespace _qv_commonwnd {

namespace {

constexpr UINT kHelpRequest = WM_USER + 22;
constexpr WPARAM kHelpCommand = 26012; // the host opens its help for this dialog
constexpr double kLowestChroma = 0.0;
constexpr double kHighestChroma = 115.0;

} // namespace

IMPLEMENT_DYNAMIC(CQVSafeColorDlg, CQVDialog)

BEGIN_MESSAGE_MAP(CQVSafeColorDlg, CQVDialog)
    ON_WM_DESTROY()
    ON_EN_CHANGE(IDC_SAFECOLOR_LUMLOW, &CQVSafeColorDlg::OnEditLumlow)
    ON_EN_CHANGE(IDC_SAFECOLOR_LUMHIGH, &CQVSafeColorDlg::OnEditLumHigh)
    ON_EN_CHANGE(IDC_SAFECOLOR_CHROMAHIGH, &CQVSafeColorDlg::OnEditChroHigh)
    ON_BN_CLICKED(IDC_SAFECOLOR_LUM_REFRESH, &CQVSafeColorDlg::OnBnClickedBtnLumRefresh)
    ON_BN_CLICKED(IDC_SAFECOLOR_CHROMA_REFRESH, &CQVSafeColorDlg::OnBnClickedBtnChromRefresh)
    ON_CBN_SELENDOK(IDC_SAFECOLOR_LUM_UNIT, &CQVSafeColorDlg::OnLumTypeClicked)
    ON_BN_CLICKED(IDOK, &CQVSafeColorDlg::OnBnClickedOk)
    ON_MESSAGE(kHelpRequest, &CQVSafeColorDlg::OnMessageHelp)
    ON_MESSAGE(_qv_extractrl::QVN_EDITNOTIFY, &CQVSafeColorDlg::OnTimeCodeEditChangeEx)
    ON_BN_CLICKED(IDC_SAFECOLOR_LIMIT, &CQVSafeColorDlg::OnBnClickedRadio)
    ON_BN_CLICKED(IDC_SAFECOLOR_WARNING, &CQVSafeColorDlg::OnBnClickedRadio)
    ON_BN_CLICKED(IDC_SAFECOLOR_IGNORE, &CQVSafeColorDlg::OnBnClickedRadio)
END_MESSAGE_MAP()

CQVSafeColorDlg::CQVSafeColorDlg(CWnd* parent) : CQVDialog(IDD_SAFECOLOR, parent) {
}

CQVSafeColorDlg::~CQVSafeColorDlg() {
    delete m_pLumLow;
    delete m_pLumHigh;
    delete m_pChromaHigh;
}

void CQVSafeColorDlg::SetOPALMainWnd(CWnd* pWnd) {
    m_pOPALMainWnd = pWnd;
}

// Reads one of the luminance edits into the record and its percentage.
void CQVSafeColorDlg::ReadLuminance(CQVNumberEditEx* edit, double& code, double& percent) {
    if (InPercent()) {
        percent = edit->GetPos();
        code = PercentToCode(percent);
    } else {
        code = edit->GetPos();
        percent = CodeToPercent(code);
    }
}

void CQVSafeColorDlg::GetEditValue() {
    if (!Ready())
        return;
    ReadLuminance(m_pLumLow, m_SafeColor.dLumLow, m_dLumLowPercent);
    ReadLuminance(m_pLumHigh, m_SafeColor.dLumHigh, m_dLumHighPercent);
    if (m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT)
        m_SafeColor.dChromaHigh = m_pChromaHigh->GetPos();
}

void CQVSafeColorDlg::SetEditValue() {
    if (!Ready())
        return;
    const bool percent = InPercent();
    for (CQVNumberEditEx* edit : {m_pLumLow, m_pLumHigh}) {
        edit->SetDecimals(percent ? 1 : 0);
        edit->SetRange(percent ? kLowestPercent : kLowestCode, percent ? kHighestPercent : kHighestCode);
    }
    m_pLumLow->SetPos(percent ? m_dLumLowPercent : RoundCode(m_SafeColor.dLumLow));
    m_pLumHigh->SetPos(percent ? m_dLumHighPercent : RoundCode(m_SafeColor.dLumHigh));
    // The unit combo of the chrominance is disabled: only percent is offered.
    if (m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT) {
        m_pChromaHigh->SetDecimals(1);
        m_pChromaHigh->SetRange(kLowestChroma, kHighestChroma);
        m_pChromaHigh->SetPos(m_SafeColor.dChromaHigh);
    }
}

void CQVSafeColorDlg::OnEditLumlow() {
    if (!Ready())
        return;
    ReadLuminance(m_pLumLow, m_SafeColor.dLumLow, m_dLumLowPercent);
    SetDirty();
}

void CQVSafeColorDlg::OnEditLumHigh() {
    if (!Ready())
        return;
    ReadLuminance(m_pLumHigh, m_SafeColor.dLumHigh, m_dLumHighPercent);
    SetDirty();
}

void CQVSafeColorDlg::OnEditChroHigh() {
    if (!Ready())
        return;
    m_SafeColor.dChromaHigh = m_pChromaHigh->GetPos();
    SetDirty();
}

// The correction looks at the code values only; in percent the edits show the percentages that were read.
LRESULT CQVSafeColorDlg::OnTimeCodeEditChangeEx(WPARAM, LPARAM lParam) {
    if (!Ready())
        return 0;
    GetEditValue();
    const auto* sender = reinterpret_cast<const CWnd*>(lParam);
    const bool crossed = m_SafeColor.dLumLow > m_SafeColor.dLumHigh;
    if (sender == m_pLumLow || sender == m_pLumHigh) {
        if (crossed && sender == m_pLumLow)
            m_SafeColor.dLumLow = m_SafeColor.dLumHigh;
        else if (crossed)
            m_SafeColor.dLumHigh = m_SafeColor.dLumLow;
        if (crossed)
            SetEditValue();
        m_pLumRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_LUMINANCE));
    }
    if (sender == m_pChromaHigh)
        m_pChromaRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_CHROMINANCE));
    SetDirty();
    return 0;
}

void CQVSafeColorDlg::OnBnClickedBtnLumRefresh() {
    m_SafeColor.ResetDirty(QVSAFECOLOR_LUMINANCE);
    m_dLumLowPercent = CodeToPercent(m_SafeColor.dLumLow);
    m_dLumHighPercent = CodeToPercent(m_SafeColor.dLumHigh);
    if (Ready()) {
        const bool percent = InPercent();
        m_pLumLow->SetPos(percent ? m_dLumLowPercent : RoundCode(PercentToCode(m_dLumLowPercent)));
        m_pLumHigh->SetPos(percent ? m_dLumHighPercent : RoundCode(PercentToCode(m_dLumHighPercent)));
    }
    m_pLumRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_LUMINANCE));
    SetDirty();
}

void CQVSafeColorDlg::OnBnClickedBtnChromRefresh() {
    m_SafeColor.ResetDirty(QVSAFECOLOR_CHROMINANCE);
    if (Ready() && m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT)
        m_pChromaHigh->SetPos(m_SafeColor.dChromaHigh);
    m_pChromaRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_CHROMINANCE));
    SetDirty();
}

void CQVSafeColorDlg::OnLumTypeClicked() {
    const LRESULT selection = m_pLumUnit->SendMessage(CB_GETCURSEL);
    if (selection < 0)
        return;
    GetEditValue();
    m_SafeColor.nLumUnit = static_cast<int>(selection);
    SetEditValue();
    SetDirty();
}

void CQVSafeColorDlg::ReadAction() {
    auto checked = [](CWnd* radio) { return radio && radio->SendMessage(BM_GETCHECK) != BST_UNCHECKED; };
    if (checked(m_pLimit))
        m_SafeColor.nAction = QVSAFECOLOR_LIMIT;
    else if (checked(m_pWarning))
        m_SafeColor.nAction = QVSAFECOLOR_WARNING;
    else if (checked(m_pIgnore))
        m_SafeColor.nAction = QVSAFECOLOR_IGNORE;
}

void CQVSafeColorDlg::OnBnClickedRadio() {
    ReadAction();
    SetDirty();
    SetTabStop();
}

void CQVSafeColorDlg::SetDirty() {
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->EnableWindow(!(m_SafeColor == m_SafeColorOrg));
}

void CQVSafeColorDlg::SetTabStop() {
}

void CQVSafeColorDlg::OnBnClickedOk() {
    GetEditValue();
    ReadAction();
    CDialog::OnOK();
}

LRESULT CQVSafeColorDlg::OnMessageHelp(WPARAM, LPARAM) {
    if (m_pOPALMainWnd && ::IsWindow(m_pOPALMainWnd->GetSafeHwnd()))
        m_pOPALMainWnd->SendMessage(WM_COMMAND, kHelpCommand, 0);
    return 0;
}

void CQVSafeColorDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonwnd
