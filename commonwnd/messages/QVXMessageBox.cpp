#include "QVXMessageBox.h"

#include "module/DictText.h"
#include "MessageBoxRules.h"
#include "QVModule.h"
#include "res/ResourceIds.h"

#include <QVCommonClass.h>
#include <QVSkin.h>

#include <iterator>

namespace _qv_commonwnd {

namespace {

constexpr UINT kNoAnswer = 0;
constexpr UINT kTypeWhileShown = 4;
constexpr UINT kTypeUnset = 0x7FFFFFF;

// What the tick box needs beside its text, in pixels at 96 DPI: mark, gap and focus ring.
constexpr int kTickMarkPx = 26;

// The answer given with the tick box ticked, for the rest of the run.
UINT g_nMessageAnswer = kNoAnswer;

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
    AnchorControls();
    GrowForQuestion();
    SetWindowText(m_strCaption);
    SetDlgItemText(IDC_MSGBOX_TEXT, m_strText);
    m_nType = kTypeWhileShown;
    if (CWnd* cancel = GetDlgItem(IDC_MSGBOX_CANCEL))
        cancel->ShowWindow(SW_HIDE);
    return TRUE;
}

void CQVXMessageBox::AnchorControls() {
    using namespace _qv_commonctrl;
    SetAutoSize(TRUE, nullptr, 0);
    SetChildWindow(GetDlgItem(IDC_MSGBOX_NOASK), QVANCHOR_BOTTOM_LEFT, QVANCHOR_KEEP_SIZE);
    for (const int button : {IDC_MSGBOX_YES, IDC_MSGBOX_NO, IDC_MSGBOX_CANCEL})
        SetChildWindow(GetDlgItem(button), QVANCHOR_BOTTOM_RIGHT, QVANCHOR_KEEP_SIZE);
    SetChildWindow(GetDlgItem(IDC_MSGBOX_TEXT), QVANCHOR_FILL, QVANCHOR_RESIZE);
}

void CQVXMessageBox::GrowForQuestion() {
    CWnd* question = GetDlgItem(IDC_MSGBOX_TEXT);
    if (!question)
        return;
    const CSize text = MeasureQuestion(question->GetSafeHwnd(), m_strText);
    CRect window;
    GetWindowRect(&window);
    const CSize size = MessageBoxSize(text, window.Size(), WorkAreaOf(GetSafeHwnd()).Size(),
                                      _qv_commonctrl::QV_GetWindowDpi(GetSafeHwnd()));
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
    PlaceParts(text);
}

// The anchors have moved the parts already; this makes room where the text needs more than they left it.
void CQVXMessageBox::PlaceParts(CSize question) {
    const HWND controls[] = {::GetDlgItem(m_hWnd, IDC_MSGBOX_TEXT), ::GetDlgItem(m_hWnd, IDC_MSGBOX_NOASK),
                             ::GetDlgItem(m_hWnd, IDC_MSGBOX_YES)};
    CRect places[std::size(controls)];
    for (std::size_t i = 0; i < std::size(controls); ++i) {
        if (!controls[i])
            return;
        ::GetWindowRect(controls[i], &places[i]);
        ScreenToClient(&places[i]);
    }
    CRect client;
    GetClientRect(&client);
    CString noAskText;
    GetDlgItemText(IDC_MSGBOX_NOASK, noAskText);
    const UINT dpi = _qv_commonctrl::QV_GetWindowDpi(m_hWnd);
    const int noAskWidth =
        MeasureQuestion(controls[1], noAskText).cx + _qv_commonctrl::QV_ScaleForDpi(kTickMarkPx, dpi);
    const MessageBoxParts parts =
        FitQuestion({places[0], places[1], places[2]}, client.Size(), question, noAskWidth, dpi);
    CWnd::FromHandle(controls[0])->MoveWindow(parts.question);
    CWnd::FromHandle(controls[1])->MoveWindow(parts.noAsk);
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

void CQVXMessageBox::Answer(QVMessageAnswer answer) {
    m_nResult = answer;
    const CWnd* noAsk = GetDlgItem(IDC_MSGBOX_NOASK);
    if (noAsk && ::SendMessageW(noAsk->GetSafeHwnd(), BM_GETCHECK, 0, 0) != 0)
        g_nMessageAnswer = answer;
    CDialog::OnOK();
}

void CQVXMessageBox::OnBnClickedYes() {
    Answer(QVMESSAGE_YES);
}

void CQVXMessageBox::OnBnClickedNo() {
    Answer(QVMESSAGE_NO);
}

void CQVXMessageBox::OnBnClickedCancel() {
    m_nResult = QVMESSAGE_CANCEL;
    g_nMessageAnswer = kNoAnswer;
    CDialog::OnOK();
}

void CQVXMessageBox::OnBnClickedNoask() {
}

} // namespace _qv_commonwnd
