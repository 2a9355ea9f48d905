// Setting the safe-colour dialog up and taking it down.
#include "QVSafeColorDlg.h"

#include "support/DialogRows.h"
#include "LuminanceUnits.h"
#include "support/WindowText.h"
#include "res/ResourceIds.h"

#include <LWSupportAPI.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;
using _qv_extractrl::CQVNumberEditEx;

namespace _qv_commonwnd {

namespace {

constexpr UINT kMostCharacters = 5;
constexpr const wchar_t* kUnits[] = {L"8bit", L"%"};

struct TextOfControl {
    int id;
    const wchar_t* key;
};
// The heading of the actions bears the key of the units' heading.
constexpr TextOfControl kTexts[] = {{IDOK, L"PUBLIC_IDOK"},
                                    {IDCANCEL, L"PUBLIC_IDCANCEL"},
                                    {IDC_SAFECOLOR_GROUP, L"IDS_COMMONWND_SAFECOLOR"},
                                    {IDC_SAFECOLOR_LOW, L"EFFECT_PARA_LOW"},
                                    {IDC_SAFECOLOR_HIGH, L"EFFECT_PARA_HIGH"},
                                    {IDC_SAFECOLOR_UNIT, L"IDS_UNIT"},
                                    {IDC_SAFECOLOR_LUMINANCE, L"ACC_LUMINANCE"},
                                    {IDC_SAFECOLOR_CHROMINANCE, L"ACC_CHROMINANCE"},
                                    {IDC_SAFECOLOR_ACTION, L"IDS_UNIT"},
                                    {IDC_SAFECOLOR_LIMIT, L"ACC_LIMIT"},
                                    {IDC_SAFECOLOR_WARNING, L"PUBLIC_LIMIT_WARNING"},
                                    {IDC_SAFECOLOR_IGNORE, L"PUBLIC_IDIGNORE"}};

void DestroyEdit(CQVNumberEditEx*& edit) {
    if (!edit)
        return;
    edit->DestroyWindow();
    delete edit;
    edit = nullptr;
}

void FillUnit(CWnd* combo, int selection) {
    for (const wchar_t* unit : kUnits)
        combo->SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit));
    combo->SendMessage(CB_SETCURSEL, static_cast<WPARAM>(selection));
}

} // namespace

BOOL CQVSafeColorDlg::OnInitDialog() {
    CQVDialog::OnInitDialog();
    ShowTexts();
    m_dLumLowPercent = CodeToPercent(m_SafeColor.dLumLow);
    m_dLumHighPercent = CodeToPercent(m_SafeColor.dLumHigh);
    CreateEdits();
    TakeControls();
    FillUnits();
    Straighten();
    SetEditValue();
    ShowAction();
    ShowDefaults();
    m_SafeColorOrg = m_SafeColor;
    SetDirty();
    SetTabStop();
    if (m_pLumLow) {
        m_pLumLow->SetFocus();
        m_pLumLow->SetSel(0, -1);
    }
    return FALSE;
}

void CQVSafeColorDlg::ShowTexts() {
    SetWindowText(LWLoadString(L"IDS_COMMONWND_SAFECOLOR"));
    for (const auto& text : kTexts)
        SetDlgItemText(text.id, LWLoadString(text.key));
}

void CQVSafeColorDlg::CreateEdits() {
    m_pLumLow = CreateEdit(IDC_SAFECOLOR_LUMLOW_PLACE, IDC_SAFECOLOR_LUMLOW);
    m_pLumHigh = CreateEdit(IDC_SAFECOLOR_LUMHIGH_PLACE, IDC_SAFECOLOR_LUMHIGH);
    m_pChromaHigh = CreateEdit(IDC_SAFECOLOR_CHROMAHIGH_PLACE, IDC_SAFECOLOR_CHROMAHIGH);
}

// In the place of a hidden edit of the template, and behind it in the tab order.
CQVNumberEditEx* CQVSafeColorDlg::CreateEdit(int placeholder, UINT id) {
    auto* edit = new CQVNumberEditEx;
    edit->CreateEx(WS_EX_CLIENTEDGE, L"NumberEditClass", nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                   ChildRect(*this, placeholder), this, id);
    edit->SetFont(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd)));
    edit->LimitText(kMostCharacters);
    edit->SetWindowPos(GetDlgItem(placeholder), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return edit;
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

void CQVSafeColorDlg::FillUnits() {
    FillUnit(m_pLumUnit, m_SafeColor.nLumUnit);
    FillUnit(m_pChromaUnit, m_SafeColor.nChromaUnit);
    m_pChromaUnit->EnableWindow(FALSE);
}

// Rows and columns of the grid: the headings stand over their fields.
void CQVSafeColorDlg::Straighten() {
    AlignRow(*this, IDC_SAFECOLOR_LUMLOW,
             {IDC_SAFECOLOR_LUMINANCE, IDC_SAFECOLOR_LUM_REFRESH, IDC_SAFECOLOR_LUM_UNIT});
    AlignRow(*this, IDC_SAFECOLOR_CHROMAHIGH,
             {IDC_SAFECOLOR_CHROMINANCE, IDC_SAFECOLOR_CHROMA_REFRESH, IDC_SAFECOLOR_CHROMA_UNIT});
    AlignRow(*this, IDC_SAFECOLOR_HIGH, {IDC_SAFECOLOR_LOW, IDC_SAFECOLOR_UNIT});
    CentreOver(*this, IDC_SAFECOLOR_LUMLOW, IDC_SAFECOLOR_LOW);
    CentreOver(*this, IDC_SAFECOLOR_LUMHIGH, IDC_SAFECOLOR_HIGH);
    CentreOver(*this, IDC_SAFECOLOR_LUM_UNIT, IDC_SAFECOLOR_UNIT);
    CentreOver(*this, IDC_SAFECOLOR_LUM_UNIT, IDC_SAFECOLOR_CHROMA_UNIT);
}

void CQVSafeColorDlg::ShowAction() {
    CWnd* const radios[] = {m_pLimit, m_pWarning, m_pIgnore};
    for (int action = 0; action < 3; ++action)
        radios[action]->SendMessage(BM_SETCHECK, action == m_SafeColor.nAction ? BST_CHECKED : BST_UNCHECKED);
}

void CQVSafeColorDlg::ShowDefaults() {
    const CString image = QV_GetSkinPath() + L"\\OPAL\\Reset.png";
    m_pLumRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_LUMINANCE));
    m_pChromaRefresh->SetCheck(m_SafeColor.IsDirty(QVSAFECOLOR_CHROMINANCE));
    m_pLumRefresh->SetImageList(image, QVIMAGE_HAS_ALL);
    m_pChromaRefresh->SetImageList(image, QVIMAGE_HAS_ALL);
}

void CQVSafeColorDlg::OnDestroy() {
    DestroyEdit(m_pLumLow);
    DestroyEdit(m_pLumHigh);
    DestroyEdit(m_pChromaHigh);
    CQVDialog::OnDestroy();
}

} // namespace _qv_commonwnd
