#include "Z5ProgressDlg.h"

#include "ProgressRules.h"
#include "SpinLock.h"
#include "res/ResourceIds.h"
#include "support/WindowText.h"

#include <LWSupportAPI.h>
#include <QVSkin.h>

#include <atomic>
#include <cwchar>
#include <mutex>

namespace _qv_commonwnd {

namespace {

constexpr UINT_PTR kTickTimer = 12;
constexpr UINT kTickMs = 100;
constexpr int kDefaultRange = 100;
constexpr int kLargestRange = 1000;
constexpr int kBarStep = 1;

int s_nDotCount = 0; // dots at the next tick; goes on from one window to the next
SpinLock s_textLock; // of strText, as SetTextShow and the window use it; held no longer than a copy takes

// The static members are plain data that other threads store to while the window runs.
template <class T> T Load(T& value) {
    return std::atomic_ref<T>(value).load(std::memory_order_relaxed);
}

template <class T> void Store(T& value, T now) {
    std::atomic_ref<T>(value).store(now, std::memory_order_relaxed);
}

CString TextNow() {
    const std::lock_guard lock(s_textLock);
    return CZ5ProgressDlg::strText;
}

void LayOut(CZ5ProgressDlg& window) {
    CRect client;
    window.GetClientRect(&client);
    const ProgressLayout layout = LayOutProgress(client, ChildRect(window, IDC_PROGRESS_TEXT),
                                                 _qv_commonctrl::QV_GetWindowDpi(window.m_hWnd));
    window.m_stText.MoveWindow(layout.message, TRUE);
    window.m_ctrlProgress.MoveWindow(layout.bar, TRUE);
    if (CWnd* cancel = window.GetDlgItem(IDC_PROGRESS_CANCEL))
        cancel->MoveWindow(layout.cancel, TRUE);
}

void ShowPosition(CZ5ProgressDlg& window) {
    window.m_ctrlProgress.SetPos(BarPosition(Load(CZ5ProgressDlg::m_nCurPos), window.m_nRange));
}

void Tick(CZ5ProgressDlg& window) {
    const float before = Load(CZ5ProgressDlg::m_nCurPos);
    ProgressState state = {before, window.m_fStep, Load(CZ5ProgressDlg::m_nNextPos), window.m_nRange,
                           window.m_nSlowLimit};
    AdvanceProgress(state);
    // A report that came in between counts more than this step.
    float expected = before;
    std::atomic_ref<float>(CZ5ProgressDlg::m_nCurPos).compare_exchange_strong(expected, state.cur);
    window.m_fStep = state.step;
    window.m_nSlowLimit = state.slowLimit;
    ShowPosition(window);
    window.m_stText.SetWindowText(ProgressMessage(TextNow(), s_nDotCount));
    s_nDotCount = NextDotCount(s_nDotCount);
}

// The user sees the bar arrive. A position below the range (or none at all) starts at its lower end.
void FillBar(CZ5ProgressDlg& window) {
    float cur = Load(CZ5ProgressDlg::m_nCurPos);
    if (!(cur > 0.0f))
        cur = 0.0f;
    while (static_cast<float>(window.m_nRange) > cur) {
        cur += 1.0f;
        Store(CZ5ProgressDlg::m_nCurPos, cur);
        ShowPosition(window);
        window.m_ctrlProgress.UpdateWindow();
    }
}

} // namespace

int CZ5ProgressDlg::m_bEndWnd = 0;
float CZ5ProgressDlg::m_nCurPos = 0.0f;
int CZ5ProgressDlg::m_nNextPos = 0;
int CZ5ProgressDlg::m_bExist = 0;
CString CZ5ProgressDlg::strText;

IMPLEMENT_DYNAMIC(CZ5ProgressDlg, _qv_commonctrl::CQVDialog)

BEGIN_MESSAGE_MAP(CZ5ProgressDlg, _qv_commonctrl::CQVDialog)
    ON_WM_TIMER()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDC_PROGRESS_CANCEL, &CZ5ProgressDlg::OnBnClickedExist)
END_MESSAGE_MAP()

void CZ5ProgressDlg::ProgressWndDoModle(wchar_t* title, int range, float step) {
    CZ5ProgressDlg window(nullptr);
    if (title)
        window.m_strTitle = title;
    if (range >= 1 && range <= kLargestRange)
        window.m_nRange = range;
    if (step > 0.0f)
        window.m_fStep = step;
    Store(m_bExist, 0);
    window.CDialog::DoModal();
}

void CZ5ProgressDlg::SetCurPos(int cur, int next) {
    Store(m_nCurPos, static_cast<float>(cur));
    Store(m_nNextPos, next > cur ? next : -1);
}

void CZ5ProgressDlg::SetTextShow(wchar_t* text) {
    if (!text)
        return;
    const auto length = static_cast<int>(std::wcslen(text));
    const std::lock_guard lock(s_textLock);
    strText.SetString(text, length);
}

void CZ5ProgressDlg::EndProgressWnd(int end) {
    Store(m_bEndWnd, end);
}

int CZ5ProgressDlg::Exist() {
    return Load(m_bExist);
}

CZ5ProgressDlg::CZ5ProgressDlg(CWnd* parent) : CQVDialog(IDD_PROGRESS, parent), m_nRange(kDefaultRange) {
    Store(m_nCurPos, 0.0f);
}

CZ5ProgressDlg::~CZ5ProgressDlg() = default;

BOOL CZ5ProgressDlg::OnInitDialog() {
    CQVDialog::OnInitDialog();
    Store(m_bExist, 0);
    SetWindowText(m_strTitle);
    m_stText.SetWindowText(ProgressMessage(TextNow(), 0));
    m_ctrlProgress.SetRange32(0, m_nRange);
    m_ctrlProgress.SetPos(0);
    m_ctrlProgress.SetStep(kBarStep);
    SetTimer(kTickTimer, kTickMs, nullptr);
    LayOut(*this);
    SetDlgItemText(IDC_PROGRESS_CANCEL, LWLoadString(L"PUBLIC_IDCANCEL"));
    return TRUE;
}

// The cancel button has the focus: the dialog manager would press it for Enter, as if it were the default
// one.
BOOL CZ5ProgressDlg::PreTranslateMessage(MSG* msg) {
    if (msg && msg->message == WM_KEYDOWN && msg->wParam == VK_RETURN)
        return TRUE;
    return CQVDialog::PreTranslateMessage(msg);
}

void CZ5ProgressDlg::OnTimer(UINT_PTR id) {
    if (id == kTickTimer)
        Tick(*this);
    if (Load(m_bEndWnd)) {
        FillBar(*this);
        CDialog::OnOK();
    } else {
        CQVDialog::OnTimer(id);
    }
}

void CZ5ProgressDlg::OnClose() {
    if (Load(m_bEndWnd))
        CQVDialog::OnClose();
}

void CZ5ProgressDlg::OnDestroy() {
    KillTimer(kTickTimer);
    CQVDialog::OnDestroy();
}

void CZ5ProgressDlg::OnBnClickedExist() {
    Store(m_bExist, 1);
}

void CZ5ProgressDlg::OnOK() {
}

void CZ5ProgressDlg::OnCancel() {
}

void CZ5ProgressDlg::OnSkinChange(UINT reason, HWND wnd) {
    CQVDialog::OnSkinChange(reason, wnd);
}

void CZ5ProgressDlg::DoDataExchange(CDataExchange* dx) {
    CQVDialog::DoDataExchange(dx);
    DDX_Control(dx, IDC_PROGRESS_TEXT, m_stText);
    DDX_Control(dx, IDC_PROGRESS_BAR, m_ctrlProgress);
}

} // namespace _qv_commonwnd
