// afxdlgs.h: the system's common dialogs as framework classes: the hook-style file dialog.
#pragma once

#include "afxwin.h"

#include <commdlg.h>

// Base of the classes that stand for a system dialog.
class AFXFRAME_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

  public:
    explicit CCommonDialog(CWnd* pParentWnd);

  protected:
    // The system dialog ends itself; the framework's own ending must not run.
    void OnOK() override;
    void OnCancel() override;
};

// The Explorer-style open and save dialog. The object is attached to the child dialog that the system makes for its
// hook, so GetParent() is the system dialog's frame. The getters answer for the running dialog while there is one,
// and from m_ofn afterwards; they are meaningless before DoModal has returned IDOK once.
class AFXFRAME_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

  public:
    // Handed to the system as it stands. lpstrFile points to an internal buffer of MAX_PATH characters until the
    // caller replaces it (and nMaxFile); the hook fields belong to this class.
    OPENFILENAMEW m_ofn;

    // `lpszFilter`: pairs "text|pattern|", closed by another "|"; null for none. `dwSize`: size of m_ofn to state, 0 for
    // the full one. `bVistaStyle` is accepted and has no effect: the dialog is always the hook-style one.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = FALSE);

    // IDOK or IDCANCEL. IDCANCEL also for a system error: see CommDlgExtendedError.
    INT_PTR DoModal() override;

    const OPENFILENAMEW& GetOFN() const { return m_ofn; }
    OPENFILENAMEW& GetOFN() { return m_ofn; }

    CString GetPathName() const;   // full path of the (first) file
    CString GetFileName() const;   // name with extension
    CString GetFileExt() const;    // extension without its dot
    CString GetFileTitle() const;  // name without extension
    CString GetFolderPath() const; // shown folder, only while the dialog runs
    BOOL GetReadOnlyPref() const;

    // All chosen paths, also of a dialog without OFN_ALLOWMULTISELECT. Null: there is none (or no further one).
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

  protected:
    BOOL m_bOpenFileDialog;
    CString m_strFilter; // the filter with NULs in place of the bars
    wchar_t m_szFileTitle[MAX_PATH];
    wchar_t m_szFileName[MAX_PATH];

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    // What the system asks or tells while the dialog runs. The defaults accept and do nothing.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName); // OFN_SHAREWARN, OFN_SHARENOWARN or OFN_SHAREFALLTHROUGH
    virtual BOOL OnFileNameOK();                         // nonzero: reject the name, the dialog stays open
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    virtual void OnHelp();

  private:
    static UINT_PTR CALLBACK HookProc(HWND hDlg, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    UINT_PTR OnHookInit(HWND hDlg);
    CString AskRunning(UINT message) const;
    LPCWSTR FileListEnd() const;
};
