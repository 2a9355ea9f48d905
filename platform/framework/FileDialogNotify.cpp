// The notifications of the running file dialog.
#include "afxdlgs.h"

namespace {

// A dialog procedure answers through the window's result field; whoever sent the message to the window procedure
// reads the return value. Both are set.
BOOL Answer(HWND dialog, LRESULT value, LRESULT* result) {
    ::SetWindowLongPtrW(dialog, DWLP_MSGRESULT, static_cast<LONG_PTR>(value));
    *result = value;
    return TRUE;
}

} // namespace

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* notify = reinterpret_cast<const OFNOTIFYW*>(lParam);
    switch (static_cast<int>(notify->hdr.code)) {
    case static_cast<int>(CDN_INITDONE):
        OnInitDone();
        return TRUE;
    case static_cast<int>(CDN_SELCHANGE):
        OnFileNameChange();
        return TRUE;
    case static_cast<int>(CDN_FOLDERCHANGE):
        OnFolderChange();
        return TRUE;
    case static_cast<int>(CDN_SHAREVIOLATION):
        return Answer(m_hWnd, OnShareViolation(notify->pszFile), pResult);
    case static_cast<int>(CDN_HELP):
        OnHelp();
        return TRUE;
    case static_cast<int>(CDN_FILEOK):
        return Answer(m_hWnd, OnFileNameOK(), pResult);
    case static_cast<int>(CDN_TYPECHANGE):
        OnTypeChange();
        return TRUE;
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

void CFileDialog::OnInitDone() {}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}

void CFileDialog::OnHelp() {}
