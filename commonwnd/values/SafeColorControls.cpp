#include "SafeColorControls.h"

#include "res/ResourceIds.h"
#include "support/WindowText.h"

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

} // namespace

void ShowSafeColorTexts(CWnd& dialog) {
    dialog.SetWindowText(LWLoadString(L"IDS_COMMONWND_SAFECOLOR"));
    for (const auto& text : kTexts)
        dialog.SetDlgItemText(text.id, LWLoadString(text.key));
}

CQVNumberEditEx* CreateNumberEdit(CWnd& dialog, int placeholder, UINT id) {
    auto* edit = new CQVNumberEditEx;
    edit->CreateEx(WS_EX_CLIENTEDGE, L"NumberEditClass", nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                   ChildRect(dialog, placeholder), &dialog, id);
    edit->SetFont(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(dialog.m_hWnd)));
    edit->LimitText(kMostCharacters);
    edit->SetWindowPos(dialog.GetDlgItem(placeholder), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return edit;
}

void DestroyNumberEdit(CQVNumberEditEx*& edit) {
    if (!edit)
        return;
    edit->DestroyWindow();
    delete edit;
    edit = nullptr;
}

void FillUnits(CWnd& combo, int selection) {
    for (const wchar_t* unit : kUnits)
        combo.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit));
    combo.SendMessage(CB_SETCURSEL, static_cast<WPARAM>(selection));
}

} // namespace _qv_commonwnd
