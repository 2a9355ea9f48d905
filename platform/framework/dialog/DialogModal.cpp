// CDialog: the modal run.
#include "window/ThreadState.h"
#include "afxapp_.h"
#include "afxdlg_.h"

namespace {

// Keeps the owner disabled, and enables it again before the dialog goes: else the system would hand the
// activation to another program.
class DisabledOwner {
  public:
    explicit DisabledOwner(HWND owner) : m_owner(owner) {
        m_disabled = owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner);
        if (m_disabled)
            ::EnableWindow(owner, FALSE);
    }
    ~DisabledOwner() { Enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;
    void Enable() {
        if (std::exchange(m_disabled, false) && ::IsWindow(m_owner))
            ::EnableWindow(m_owner, TRUE);
    }

  private:
    HWND m_owner;
    bool m_disabled;
};

void EnableTop(HWND top) {
    if (top && ::IsWindow(top))
        ::EnableWindow(top, TRUE);
}

} // namespace

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_pParentWnd = pParentWnd;
    m_lpDialogInit = lpDialogInit;
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
    return owner ? owner->m_hWnd : nullptr;
}

void CDialog::PostModal() {
    EnableTop(std::exchange(m_hWndTop, nullptr));
}

INT_PTR CDialog::DoModal() {
    if (m_hWnd)
        return -1;
    LPCDLGTEMPLATE found = m_lpDialogTemplate;
    HINSTANCE hInst = AfxGetResourceHandle();
    HGLOBAL memory = m_hDialogTemplate;
    if (m_lpszTemplateName) {
        hInst = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        const HRSRC resource = ::FindResourceW(hInst, m_lpszTemplateName, RT_DIALOG);
        memory = resource ? ::LoadResource(hInst, resource) : nullptr;
    }
    if (memory)
        found = static_cast<LPCDLGTEMPLATE>(::LockResource(memory));
    if (!found)
        return -1;

    const HWND owner = PreModal();
    const HWND top = m_hWndTop;
    DisabledOwner disabled(owner);
    const TemporaryScope temporaries;
    const WndWatch watch(this);
    m_nModalResult = -1;
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    const BOOL created = CreateDlgIndirect(found, owner, hInst);
    if (created && watch.IsAlive() && (m_nFlags & WF_CONTINUEMODAL)) {
        // A window destroyed from outside ends the run like a cancel.
        m_nModalResult = IDCANCEL;
        RunModalLoop((GetStyle() & DS_NOIDLEMSG) ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    }
    if (!watch.IsAlive()) {
        disabled.Enable();
        EnableTop(top);
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
