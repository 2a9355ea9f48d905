#include "window/ThreadState.h"
#include "afxapp_.h"
#include "afxdlg_.h"

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

// The parts of a template header that matter here, for both kinds of templates.
struct TemplateHeader {
    DWORD style;
    short x;
    short y;
};

TemplateHeader ReadHeader(LPCDLGTEMPLATE lpTemplate) {
    constexpr WORD kExtendedMark = 0xFFFF;
    const auto* const words = reinterpret_cast<const WORD*>(lpTemplate);
    if (words[1] != kExtendedMark)
        return {lpTemplate->style, lpTemplate->x, lpTemplate->y};
    // version, mark, help id, extended style (2 words each for the latter two), style, item count, x, y
    return {static_cast<DWORD>(words[6]) | (static_cast<DWORD>(words[7]) << 16), static_cast<short>(words[9]),
            static_cast<short>(words[10])};
}

// Where a dialog stands: a template that says no place of its own is centred over the owner.
bool WantsCentre(const TemplateHeader& header) {
    constexpr DWORD kPlacedStyles = DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE | WS_CHILD;
    return !(header.style & kPlacedStyles) && header.x == 0 && header.y == 0;
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
    const HINSTANCE hInst = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    const HRSRC resource = ::FindResourceW(hInst, lpszTemplateName, RT_DIALOG);
    const HGLOBAL memory = resource ? ::LoadResource(hInst, resource) : nullptr;
    const void* const found = memory ? ::LockResource(memory) : nullptr;
    return CreateIndirect(static_cast<LPCDLGTEMPLATE>(found), pParentWnd, nullptr, hInst);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit,
                             HINSTANCE hInst) {
    m_lpDialogInit = lpDialogInit;
    CWnd* const parent = pParentWnd ? pParentWnd : AfxGetMainWnd();
    m_pParentWnd = parent;
    return CreateDlgIndirect(lpDialogTemplate, parent ? parent->m_hWnd : nullptr,
                             hInst ? hInst : AfxGetResourceHandle());
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, HWND hWndParent, HINSTANCE hInst) {
    if (!lpDialogTemplate || m_hWnd)
        return FALSE;
    AfxInitControls();
    m_bCentre = WantsCentre(ReadHeader(lpDialogTemplate));
    if (!AfxHookWindowCreate(this))
        return FALSE;
    const HWND hWnd = ::CreateDialogIndirectParamW(hInst, lpDialogTemplate, hWndParent, DialogProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != nullptr;
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
