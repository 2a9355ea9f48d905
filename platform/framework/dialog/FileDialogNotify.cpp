// CFileDialog: what the running dialog tells and is told.
#include "afxdlgs.h"

namespace {

const UINT g_nLBSelChanged = ::RegisterWindowMessageW(LBSELCHSTRINGW);

// The system reads the answer of a dialog procedure from the window, that of a window procedure from the
// result; the hook's window is both.
BOOL Answer(HWND hWnd, LRESULT value, LRESULT* pResult) {
    ::SetWindowLongPtrW(hWnd, DWLP_MSGRESULT, static_cast<LONG_PTR>(value));
    *pResult = value;
    return TRUE;
}

} // namespace

BEGIN_MESSAGE_MAP(CFileDialog, CCommonDialog)
    ON_REGISTERED_MESSAGE(g_nLBSelChanged, &CFileDialog::HandleLBSelChanged)
END_MESSAGE_MAP()

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto& notify = *reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notify.hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        OnTypeChange();
        return TRUE;
    case CDN_HELP:
        OnHelp();
        return TRUE;
    case CDN_FILEOK:
        return Answer(m_hWnd, OnFileNameOK(), pResult);
    case CDN_SHAREVIOLATION:
        return Answer(m_hWnd, OnShareViolation(notify.pszFile), pResult);
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {
}

LRESULT CFileDialog::HandleLBSelChanged(WPARAM wParam, LPARAM lParam) {
    OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    return 0;
}

void CFileDialog::SetControlText(int nID, LPCTSTR lpsz) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                       reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCTSTR lpsz) {
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(lpsz));
}
