// CDialog: made from a template, modeless or modal, what happens inside, and its end.
#include "DialogTemplate.h"
#include "DisabledOwner.h"
#include "handles/HandleOf.h"
#include "handles/TemporaryScope.h"
#include "window/CreationHook.h"
#include "window/WndWatch.h"
#include "afx/Dialog.h"
#include "afx/Resources.h"
#include "afx/WinThread.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

constexpr UINT kFirstCommandId = 0x8000; // ids of commands that are routed further than the dialog
constexpr UINT kLastCommandId = 0xEFFF;

// The system's part of a dialog calls here for what our window procedure left to it.
INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG)
        return FALSE;
    // OnInitDialog runs inside WM_INITDIALOG's delivery, where exceptions are caught.
    auto* const dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    return dialog ? dialog->OnInitDialog() : TRUE;
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_lpszTemplateName(MAKEINTRESOURCEW(nIDTemplate)), m_pParentWnd(pParentWnd) {
}

CDialog::~CDialog() {
    if (m_hWnd && CWnd::FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    const DialogTemplate found = FindDialogTemplate(lpszTemplateName);
    return CreateIndirect(found.bytes, pParentWnd, nullptr, found.module);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*, HINSTANCE hInst) {
    m_pParentWnd = pParentWnd ? pParentWnd : AfxGetMainWnd();
    return CreateDlgIndirect(lpDialogTemplate, HandleOf(m_pParentWnd),
                             hInst ? hInst : AfxGetResourceHandle());
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, HWND hWndParent, HINSTANCE hInst) {
    if (!lpDialogTemplate || m_hWnd)
        return FALSE;
    AfxInitControls();
    m_bCentre = WantsCentre(lpDialogTemplate);
    if (!AfxHookWindowCreate(this))
        return FALSE;
    const HWND hWnd = ::CreateDialogIndirectParamW(hInst, lpDialogTemplate, hWndParent, DialogProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    m_hDialogTemplate = hDialogTemplate;
    m_pParentWnd = pParentWnd;
    return TRUE;
}

HWND CDialog::PreModal() {
    m_hWndTop = nullptr;
    CWnd* const owner = CWnd::GetSafeOwner(m_pParentWnd, &m_hWndTop);
    return HandleOf(owner);
}

void CDialog::PostModal() {
    EnableAgain(std::exchange(m_hWndTop, nullptr));
}

DialogTemplate CDialog::ModalTemplate() const {
    if (m_lpszTemplateName)
        return FindDialogTemplate(m_lpszTemplateName);
    const void* const bytes = m_hDialogTemplate ? ::LockResource(m_hDialogTemplate) : m_lpDialogTemplate;
    return {static_cast<LPCDLGTEMPLATE>(bytes), AfxGetResourceHandle()};
}

INT_PTR CDialog::DoModal() {
    const DialogTemplate found = m_hWnd ? DialogTemplate() : ModalTemplate();
    if (!found.bytes)
        return -1;

    const HWND owner = PreModal();
    const HWND top = m_hWndTop;
    DisabledOwner disabled(owner);
    const TemporaryScope temporaries;
    const WndWatch watch(this);
    m_nModalResult = -1;
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    const BOOL created = CreateDlgIndirect(found.bytes, owner, found.module);
    if (created && watch.IsAlive() && (m_nFlags & WF_CONTINUEMODAL)) {
        // A window destroyed from outside ends the run like a cancel.
        m_nModalResult = IDCANCEL;
        RunModalLoop((GetStyle() & DS_NOIDLEMSG) ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    }
    if (!watch.IsAlive()) {
        disabled.Enable();
        EnableAgain(top);
        return created ? IDCANCEL : -1;
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    const INT_PTR result = m_nModalResult;
    const bool wasActive = m_hWnd && ::GetActiveWindow() == m_hWnd;
    disabled.Enable();
    PostModal();
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    if (wasActive && owner)
        ::SetActiveWindow(owner);
    DestroyWindow();
    temporaries.Remove(); // those of the run; its callers may hold older ones
    return result;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    CRect before;
    GetWindowRect(&before);
    const HWND hWnd = m_hWnd;
    const LRESULT result = Default();
    // The object may have lost its window in OnInitDialog.
    CRect after;
    if (FromHandlePermanent(hWnd) != this || !::GetWindowRect(hWnd, &after))
        return result;
    if (m_bCentre && before.TopLeft() == after.TopLeft())
        CenterWindow();
    return result;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

BOOL CDialog::OnInitDialog() {
    // Data exchange that fails here leaves a dialog nobody can use.
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::EndDialog(int nResult) {
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(nResult);
    else if (m_hWnd)
        ::EndDialog(m_hWnd, nResult);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    if (pWndCtrl)
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands, as told by their ids, go on to the owner and the program; notifications of controls do not.
    if (nCode != CN_COMMAND || nID < kFirstCommandId || nID > kLastCommandId)
        return FALSE;
    CWnd* const owner = GetParent();
    if (owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
