// CFileDialog: the hook-style open and save dialog of the system.
//
//     CFileDialog dlg(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Pictures|*.png;*.jpg||", pParent);
//     if (dlg.DoModal() == IDOK)
//         Open(dlg.GetPathName());
//
// While the dialog runs, m_hWnd is the hook's child window inside the system's dialog (its GetParent). The
// system draws and works the dialog; notifications (CDN_*) arrive in OnNotify.
#pragma once

#include "CommonDialog.h"
#include <commdlg.h>

// The system's headers rename every GetFileTitle with a macro: members of that name keep it, and the system's function
// is still called by it.
#ifdef GetFileTitle
#undef GetFileTitle
inline short APIENTRY GetFileTitle(LPCTSTR lpszFile, LPTSTR lpszTitle, WORD cchTitle) {
    return ::GetFileTitleW(lpszFile, lpszTitle, cchTitle);
}
#endif

class AFXFRAME_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
  public:
    OPENFILENAME m_ofn;     // may be changed before DoModal; the strings set there are borrowed
    BOOL m_bOpenFileDialog; // FALSE: save

    // lpszDefExt: extension appended to names without one, without its dot. lpszFileName: first content of
    // the name field. lpszFilter: pairs "description|patterns|", ended by one more bar; null for none. dwSize
    // and bVistaStyle are accepted and without effect: the dialog is always the hook-style one, with the full
    // OPENFILENAME. All strings are copied.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;
    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }

    // IDOK, or IDCANCEL for cancel and failure (CommDlgExtendedError tells which).
    INT_PTR DoModal() override;

    // ---- Results, while the dialog runs (of the selection) and after IDOK. Any length.
    CString GetPathName() const;   // full path; of a multi-selection the first
    CString GetFileName() const;   // name with extension
    CString GetFileExt() const;    // text after the last dot of the name, empty without one
    CString GetFileTitle() const;  // name without extension
    CString GetFolderPath() const; // folder in view; while the dialog runs only
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // The paths of a multi-selection. Null start position: none.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    // ---- While the dialog runs; nothing otherwise. nID: a control of the system's dialog.
    void SetControlText(int nID, LPCTSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCTSTR lpsz);

  protected:
    // ---- Notifications. OnFileNameOK: nonzero keeps the dialog open. OnShareViolation: OFN_SHARE*.
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual BOOL OnFileNameOK();
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone() {}
    virtual void OnFileNameChange() {}
    virtual void OnFolderChange() {}
    virtual void OnTypeChange() {}
    virtual void OnHelp() {}

  private:
    static UINT_PTR CALLBACK HookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleLBSelChanged(WPARAM wParam, LPARAM lParam);
    CString AskDialog(UINT message) const;

    CString m_strFilter; // with NULs for bars
    CString m_strDefExt;
    LPTSTR m_pszNameBuffer; // what lpstrFile points to unless the caller sets another buffer
    TCHAR m_szFileTitle[MAX_PATH];
    DECLARE_MESSAGE_MAP()
};
