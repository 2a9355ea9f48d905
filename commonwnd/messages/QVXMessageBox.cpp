#include "QVXMessageBox.h"

#include "MessageBoxRules.h"
#include "module/DictText.h"
#include "res/ResourceIds.h"
#include "support/WindowText.h"
#include "QVModule.h"

#include <QVCommonClass.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

constexpr UINT kNoAnswer = 0;
constexpr UINT kTypeWhileShown = 4;
constexpr UINT kTypeUnset = 0x7FFFFFF;

// What the tick box needs beside its text, in pixels at 96 DPI: mark, gap and focus ring.
constexpr int kTickMarkPx = 26;

// The answer given with the tick box ticked, for the rest of the run.
UINT g_nMessageAnswer = kNoAnswer;

// How the controls follow the box when it grows for its question.
void AnchorControls(CQVXMessageBox& box) {
    using namespace _qv_commonctrl;
    box.SetAutoSize(TRUE, nullptr, 0);
    box.SetChildWindow(box.GetDlgItem(IDC_MSGBOX_NOASK), QVANCHOR_BOTTOM_LEFT, QVANCHOR_KEEP_SIZE);
    for (const int button : {IDC_MSGBOX_YES, IDC_MSGBOX_NO, IDC_MSGBOX_CANCEL})
        box.SetChildWindow(box.GetDlgItem(button), QVANCHOR_BOTTOM_RIGHT, QVANCHOR_KEEP_SIZE);
    box.SetChildWindow(box.GetDlgItem(IDC_MSGBOX_TEXT), QVANCHOR_FILL, QVANCHOR_RESIZE);
}

// The size of the work area of the monitor that a window is on.
CSize WorkAreaOf(HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    if (::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info))
        return CRect(info.rcWork).Size();
    return CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

// The anchors have moved the parts already; this makes room where the text needs more than they left it.
void PlaceParts(CWnd& box, CSize question, UINT dpi) {
    CWnd* const text = box.GetDlgItem(IDC_MSGBOX_TEXT);
    CWnd* const noAsk = box.GetDlgItem(IDC_MSGBOX_NOASK);
    if (!text || !noAsk)
        return;
    const int noAskWidth = MeasureTextIn(noAsk->m_hWnd, WindowTextOf(noAsk), 0).cx +
                           _qv_commonctrl::QV_ScaleForDpi(kTickMarkPx, dpi);
    CRect client;
    box.GetClientRect(&client);
    const MessageBoxParts parts = FitQuestion(
        {ChildRect(box, IDC_MSGBOX_TEXT), ChildRect(box, IDC_MSGBOX_NOASK), ChildRect(box, IDC_MSGBOX_YES)},
        client.Size(), question, noAskWidth, dpi);
    text->MoveWindow(parts.question);
    noAsk->MoveWindow(parts.noAsk);
}

void GrowForQuestion(CQVXMessageBox& box) {
    const UINT dpi = _qv_commonctrl::QV_GetWindowDpi(box.m_hWnd);
    const CSize question =
        MeasureTextIn(::GetDlgItem(box.m_hWnd, IDC_MSGBOX_TEXT), box.m_strText, DT_NOPREFIX);
    CRect window;
    box.GetWindowRect(&window);
    const CSize size = MessageBoxSize(question, window.Size(), WorkAreaOf(box.m_hWnd), dpi);
    box.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
    PlaceParts(box, question, dpi);
}

// The answer that a button gives; kept for the rest of the run when the tick box is ticked.
UINT Answered(const CWnd& box, QVMessageAnswer answer) {
    const CWnd* const noAsk = box.GetDlgItem(IDC_MSGBOX_NOASK);
    if (noAsk && ::SendMessageW(noAsk->GetSafeHwnd(), BM_GETCHECK, 0, 0) != 0)
        g_nMessageAnswer = answer;
    return answer;
}

} // namespace

UINT QV_MessageBox(CString caption, CString text, UINT type, CWnd* /*parent*/) {
    if (g_nMessageAnswer != kNoAnswer)
        return g_nMessageAnswer;
    CQVXMessageBox box(nullptr);
    box.m_strCaption = caption;
    box.m_strText = text;
    box.m_nType = type;
    box.DoModal();
    return box.m_nResult;
}

UINT QV_MessageRest() {
    g_nMessageAnswer = kNoAnswer;
    return 0;
}

IMPLEMENT_DYNAMIC(CQVXMessageBox, _qv_commonctrl::CQVDialog)

BEGIN_MESSAGE_MAP(CQVXMessageBox, _qv_commonctrl::CQVDialog)
    ON_BN_CLICKED(IDC_MSGBOX_YES, &CQVXMessageBox::OnBnClickedYes)
    ON_BN_CLICKED(IDC_MSGBOX_NO, &CQVXMessageBox::OnBnClickedNo)
    ON_BN_CLICKED(IDC_MSGBOX_CANCEL, &CQVXMessageBox::OnBnClickedCancel)
    ON_BN_CLICKED(IDC_MSGBOX_NOASK, &CQVXMessageBox::OnBnClickedNoask)
END_MESSAGE_MAP()

CQVXMessageBox::CQVXMessageBox(CWnd* parent)
    : CQVDialog(IDD_MESSAGEBOX, parent), m_nResult(QVMESSAGE_NO), m_nType(kTypeUnset) {
}

CQVXMessageBox::~CQVXMessageBox() = default;

INT_PTR CQVXMessageBox::DoModal() {
    // An object may be shown again; closing it without a button must not repeat the last answer.
    m_nResult = QVMESSAGE_NO;
    _qv_commonclass::CZ5ResHandleManage resources(g_hCommonWndInst);
    return CDialog::DoModal();
}

BOOL CQVXMessageBox::OnInitDialog() {
    {
        TemplateTranslation translation;
        CQVDialog::OnInitDialog();
    }
    AnchorControls(*this);
    GrowForQuestion(*this);
    SetWindowText(m_strCaption);
    SetDlgItemText(IDC_MSGBOX_TEXT, m_strText);
    m_nType = kTypeWhileShown;
    if (CWnd* cancel = GetDlgItem(IDC_MSGBOX_CANCEL))
        cancel->ShowWindow(SW_HIDE);
    return TRUE;
}

BOOL CQVXMessageBox::PreTranslateMessage(MSG* msg) {
    if (!msg || msg->message != WM_KEYDOWN)
        return CQVDialog::PreTranslateMessage(msg);
    if (msg->wParam == VK_RETURN)
        OnBnClickedYes();
    else if (msg->wParam == VK_ESCAPE)
        OnBnClickedCancel();
    return TRUE;
}

void CQVXMessageBox::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

void CQVXMessageBox::DoDataExchange(CDataExchange* dx) {
    CQVDialog::DoDataExchange(dx);
}

void CQVXMessageBox::OnBnClickedYes() {
    m_nResult = Answered(*this, QVMESSAGE_YES);
    CDialog::OnOK();
}

void CQVXMessageBox::OnBnClickedNo() {
    m_nResult = Answered(*this, QVMESSAGE_NO);
    CDialog::OnOK();
}

void CQVXMessageBox::OnBnClickedCancel() {
    m_nResult = QVMESSAGE_CANCEL;
    g_nMessageAnswer = kNoAnswer;
    CDialog::OnOK();
}

void CQVXMessageBox::OnBnClickedNoask() {
}

} // namespace _qv_commonwnd
