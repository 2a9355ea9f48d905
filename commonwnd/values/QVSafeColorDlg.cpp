#include "QVSafeColorDlg.h"

#include "LuminanceUnits.h"
#include "SafeColorControls.h"
#include "res/ResourceIds.h"

#include <QVSkin.h>

#include <initializer_list>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVNumberEditEx;

namespace _qv_commonwnd {

namespace {

constexpr UINT kHelpRequest = WM_USER + 22;
constexpr WPARAM kHelpCommand = 26012; // the host opens its help for this dialog
constexpr double kLowestChroma = 0.0;
constexpr double kHighestChroma = 115.0;

bool InPercent(const tag_QVSafeColor& color) {
    return color.nLumUnit != QVSAFECOLOR_8BIT;
}

void ShowLuminance(CQVNumberEditEx& edit, bool inPercent, double code, double percent) {
    edit.SetDecimals(inPercent ? 1 : 0);
    edit.SetRange(inPercent ? kLowestPercent : kLowestCode, inPercent ? kHighestPercent : kHighestCode);
    edit.SetPos(inPercent ? percent : RoundCode(code));
}

// The action whose radio button is checked; `before` when none is.
int CheckedAction(const std::initializer_list<CWnd*>& radios, int before) {
    int action = 0;
    for (CWnd* radio : radios) {
        if (radio && radio->SendMessage(BM_GETCHECK) != BST_UNCHECKED)
            return action;
        ++action;
    }
    return before;
}

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

BOOL CQVSafeColorDlg::OnInitDialog() {
    CQVDialog::OnInitDialog();
    ShowSafeColorTexts(*this);
    m_dLumLowPercent = CodeToPercent(m_SafeColor.dLumLow);
    m_dLumHighPercent = CodeToPercent(m_SafeColor.dLumHigh);
    m_pLumLow = CreateNumberEdit(*this, IDC_SAFECOLOR_LUMLOW_PLACE, IDC_SAFECOLOR_LUMLOW);
    m_pLumHigh = CreateNumberEdit(*this, IDC_SAFECOLOR_LUMHIGH_PLACE, IDC_SAFECOLOR_LUMHIGH);
    m_pChromaHigh = CreateNumberEdit(*this, IDC_SAFECOLOR_CHROMAHIGH_PLACE, IDC_SAFECOLOR_CHROMAHIGH);
    TakeControls();
    FillUnits(*m_pLumUnit, m_SafeColor.nLumUnit);
    FillUnits(*m_pChromaUnit, m_SafeColor.nChromaUnit);
    m_pChromaUnit->EnableWindow(FALSE);
    SetEditValue();
    int action = 0;
    for (CWnd* radio : {m_pLimit, m_pWarning, m_pIgnore})
        radio->SendMessage(BM_SETCHECK, action++ == m_SafeColor.nAction ? BST_CHECKED : BST_UNCHECKED);
    m_pLumRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_LUMINANCE));
    m_pChromaRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_CHROMINANCE));
    for (CQVButton* refresh : {m_pLumRefresh, m_pChromaRefresh})
        refresh->SetImageList(QV_GetSkinPath() + L"\\OPAL\\Reset.png", QVIMAGE_HAS_ALL);
    m_SafeColorOrg = m_SafeColor;
    SetDirty();
    SetTabStop();
    m_pLumLow->SetFocus();
    m_pLumLow->SetSel(0, -1);
    return FALSE;
}

void CQVSafeColorDlg::TakeControls() {
    m_pLumUnit = GetDlgItem(IDC_SAFECOLOR_LUM_UNIT);
    m_pChromaUnit = GetDlgItem(IDC_SAFECOLOR_CHROMA_UNIT);
    m_pIgnore = GetDlgItem(IDC_SAFECOLOR_IGNORE);
    m_pWarning = GetDlgItem(IDC_SAFECOLOR_WARNING);
    m_pLimit = GetDlgItem(IDC_SAFECOLOR_LIMIT);
    m_pLumRefresh = dynamic_cast<CQVButton*>(GetDlgItem(IDC_SAFECOLOR_LUM_REFRESH));
    m_pChromaRefresh = dynamic_cast<CQVButton*>(GetDlgItem(IDC_SAFECOLOR_CHROMA_REFRESH));
}

void CQVSafeColorDlg::GetEditValue() {
    if (!m_pChromaHigh)
        return;
    const bool percent = InPercent(m_SafeColor);
    TakeLuminance(m_pLumLow->GetPos(), percent, m_SafeColor.dLumLow, m_dLumLowPercent);
    TakeLuminance(m_pLumHigh->GetPos(), percent, m_SafeColor.dLumHigh, m_dLumHighPercent);
    if (m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT)
        m_SafeColor.dChromaHigh = m_pChromaHigh->GetPos();
}

void CQVSafeColorDlg::SetEditValue() {
    if (!m_pChromaHigh)
        return;
    const bool percent = InPercent(m_SafeColor);
    ShowLuminance(*m_pLumLow, percent, m_SafeColor.dLumLow, m_dLumLowPercent);
    ShowLuminance(*m_pLumHigh, percent, m_SafeColor.dLumHigh, m_dLumHighPercent);
    // The unit combo of the chrominance is disabled: only percent is offered.
    if (m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT) {
        m_pChromaHigh->SetDecimals(1);
        m_pChromaHigh->SetRange(kLowestChroma, kHighestChroma);
        m_pChromaHigh->SetPos(m_SafeColor.dChromaHigh);
    }
}

// OK is there for a change.
void CQVSafeColorDlg::SetDirty() {
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->EnableWindow(!(m_SafeColor == m_SafeColorOrg));
}

// The place for another order of the tab key; the template's is right.
void CQVSafeColorDlg::SetTabStop() {
}

void CQVSafeColorDlg::OnEditLumlow() {
    if (!m_pChromaHigh)
        return;
    TakeLuminance(m_pLumLow->GetPos(), InPercent(m_SafeColor), m_SafeColor.dLumLow, m_dLumLowPercent);
    SetDirty();
}

void CQVSafeColorDlg::OnEditLumHigh() {
    if (!m_pChromaHigh)
        return;
    TakeLuminance(m_pLumHigh->GetPos(), InPercent(m_SafeColor), m_SafeColor.dLumHigh, m_dLumHighPercent);
    SetDirty();
}

void CQVSafeColorDlg::OnEditChroHigh() {
    if (!m_pChromaHigh)
        return;
    m_SafeColor.dChromaHigh = m_pChromaHigh->GetPos();
    SetDirty();
}

// The correction looks at the code values only; in percent the edits show the percentages that were read.
LRESULT CQVSafeColorDlg::OnTimeCodeEditChangeEx(WPARAM, LPARAM lParam) {
    if (!m_pChromaHigh)
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
    if (!m_pChromaHigh)
        return;
    const bool percent = InPercent(m_SafeColor);
    ShowLuminance(*m_pLumLow, percent, PercentToCode(m_dLumLowPercent), m_dLumLowPercent);
    ShowLuminance(*m_pLumHigh, percent, PercentToCode(m_dLumHighPercent), m_dLumHighPercent);
    m_pLumRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_LUMINANCE));
    SetDirty();
}

void CQVSafeColorDlg::OnBnClickedBtnChromRefresh() {
    m_SafeColor.ResetDirty(QVSAFECOLOR_CHROMINANCE);
    if (!m_pChromaHigh)
        return;
    if (m_SafeColor.nChromaUnit != QVSAFECOLOR_8BIT)
        m_pChromaHigh->SetPos(m_SafeColor.dChromaHigh);
    m_pChromaRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_CHROMINANCE));
    SetDirty();
}

void CQVSafeColorDlg::OnLumTypeClicked() {
    const LRESULT selection = m_pLumUnit ? m_pLumUnit->SendMessage(CB_GETCURSEL) : CB_ERR;
    if (selection < 0)
        return;
    GetEditValue();
    m_SafeColor.nLumUnit = static_cast<int>(selection);
    SetEditValue();
    SetDirty();
}

void CQVSafeColorDlg::OnBnClickedRadio() {
    m_SafeColor.nAction = CheckedAction({m_pLimit, m_pWarning, m_pIgnore}, m_SafeColor.nAction);
    SetDirty();
    SetTabStop();
}

void CQVSafeColorDlg::OnBnClickedOk() {
    GetEditValue();
    m_SafeColor.nAction = CheckedAction({m_pLimit, m_pWarning, m_pIgnore}, m_SafeColor.nAction);
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

void CQVSafeColorDlg::OnDestroy() {
    DestroyNumberEdit(m_pChromaHigh);
    DestroyNumberEdit(m_pLumHigh);
    DestroyNumberEdit(m_pLumLow);
    CQVDialog::OnDestroy();
}

} // namespace _qv_commonwnd
