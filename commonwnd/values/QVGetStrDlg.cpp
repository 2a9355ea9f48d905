#include "QVGetStrDlg.h"

#include "module/DictText.h"
#include "QVModule.h"
#include "StringDialogLayout.h"
#include "support/WindowText.h"
#include "res/ResourceIds.h"

#include <QVCommonClass.h>
#include <QVPaintMemoDC.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

constexpr UINT kEditId = 111;
constexpr int kWindowWidthPx = 305; // with frame, at 96 DPI
constexpr int kWindowHeightPx = 115;

} // namespace

IMPLEMENT_DYNAMIC(CQVGetStrDlg, CQVDialog)

BEGIN_MESSAGE_MAP(CQVGetStrDlg, CQVDialog)
    ON_BN_CLICKED(IDOK, &CQVGetStrDlg::OnBnClickedOk)
    ON_WM_SIZE()
    ON_WM_PAINT()
END_MESSAGE_MAP()

CQVGetStrDlg::CQVGetStrDlg(CWnd* parent)
    : CQVDialog(IDD_GETSTR, parent), m_strPrompt(QV_GetCommonDictString(L"输入")) {
}

CQVGetStrDlg::~CQVGetStrDlg() {
    delete m_pEdit;
}

INT_PTR CQVGetStrDlg::DoModal() {
    _qv_commonclass::CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

INT_PTR CQVGetStrDlg::DoModalWindow() {
    m_bModalWindow = TRUE;
    const INT_PTR end = DoModal();
    m_bModalWindow = FALSE;
    return end;
}

BOOL CQVGetStrDlg::OnInitDialog() {
    {
        TemplateTranslation translation;
        CQVDialog::OnInitDialog();
    }
    SetWindowText(m_strTitle);
    CreateEdit();
    UseLabelStyle(GetDlgItem(IDC_VALUE_LABEL));
    if (!m_bModalWindow) {
        const UINT dpi = QV_GetWindowDpi(m_hWnd);
        ResizeInPlace(*this,
                      CSize(QV_ScaleForDpi(kWindowWidthPx, dpi), QV_ScaleForDpi(kWindowHeightPx, dpi)));
    }
    m_bFirstPaint = TRUE;
    return TRUE;
}

void CQVGetStrDlg::CreateEdit() {
    delete m_pEdit; // of an earlier run; its window is gone
    m_pEdit = new CQVEdit;
    CWnd* place = GetDlgItem(IDC_VALUE_EDIT);
    place->ShowWindow(SW_HIDE);
    m_pEdit->CreateEx(WS_EX_CLIENTEDGE, L"Edit", nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
                      ChildRect(*this, IDC_VALUE_EDIT), this, kEditId);
    m_pEdit->SetWindowPos(place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_pEdit->LimitText(m_nMaxLen);
    m_pEdit->SetFont(QV_GetSysFont(QV_GetFontIndex(m_strText), QV_GetWindowDpi(m_hWnd)));
    m_pEdit->SetWindowText(m_strText);
    m_pEdit->SetSel(0, m_strText.GetLength() - 1);
}

void CQVGetStrDlg::OnSize(UINT type, int cx, int cy) {
    CQVDialog::OnSize(type, cx, cy);
    if (!m_pEdit || !m_pEdit->GetSafeHwnd() || !GetDlgItem(IDCANCEL))
        return;
    if (m_bModalWindow)
        LayOutWindow();
    else
        LayOutPrompted();
}

void CQVGetStrDlg::LayOutPrompted() {
    CRect client;
    GetClientRect(&client);
    const StringDialogLayout layout = LayOutPromptedString(client, QV_GetWindowDpi(m_hWnd));
    if (CWnd* label = GetDlgItem(IDC_VALUE_LABEL))
        label->MoveWindow(layout.label);
    m_pEdit->MoveWindow(layout.edit);
    GetDlgItem(IDCANCEL)->MoveWindow(layout.cancel);
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->MoveWindow(layout.ok);
}

void CQVGetStrDlg::LayOutWindow() {
    CRect client;
    GetClientRect(&client);
    const StringDialogLayout layout = LayOutStringWindow(client, ChildRect(*this, IDOK),
                                                         ChildRect(*this, IDCANCEL), QV_GetWindowDpi(m_hWnd));
    if (CWnd* label = GetDlgItem(IDC_VALUE_LABEL))
        label->ShowWindow(SW_HIDE);
    m_pEdit->MoveWindow(layout.edit);
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->MoveWindow(layout.ok);
    GetDlgItem(IDCANCEL)->MoveWindow(layout.cancel);
}

void CQVGetStrDlg::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_WINDOW);
    if (m_bFirstPaint && m_pEdit) {
        m_bFirstPaint = FALSE;
        m_pEdit->SetFocus();
        m_pEdit->SetSel(0, m_pEdit->GetWindowTextLength());
    }
}

void CQVGetStrDlg::OnBnClickedOk() {
    m_strText = WindowTextOf(m_pEdit);
    if (m_strText.IsEmpty() && !m_bAllowEmpty)
        return;
    if (m_strText.FindOneOf(m_strInvalidChar) >= 0) {
        AfxMessageBox(QV_GetCommonDictString(L"非法字符") + m_strInvalidChar, MB_OK);
        m_pEdit->SetFocus();
        return;
    }
    CDialog::OnOK();
}

void CQVGetStrDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

void CQVGetStrDlg::DoDataExchange(CDataExchange* dx) {
    CQVDialog::DoDataExchange(dx);
    DDX_Text(dx, IDC_VALUE_LABEL, m_strPrompt);
}

} // namespace _qv_commonwnd
