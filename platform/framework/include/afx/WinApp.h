// CWinApp: the program's object.
//
//     class CMyApp : public CWinApp {
//         BOOL InitInstance() override { m_pMainWnd = ...; return TRUE; }
//     };
//     CMyApp theApp; // link the program with AfxFrameMain, which brings wWinMain
//
// None of this is needed to use windows and dialogs: a program without a CWinApp runs its own loop, and modal
// dialogs run theirs.
#pragma once

#include "Resources.h"
#include "WinThread.h"

class AFXFRAME_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
  public:
    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr; // arguments without the program's name; never null after start
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr; // title of message boxes; never null after start
    LPCTSTR m_pszExeName = nullptr; // file name without extension

    // Null name: the program file's name.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    BOOL InitInstance() override;
    int Run() override;
    virtual BOOL InitApplication();
    // nType: MB_*; the owner is the active top-level window. Returns the button's id, 0 on failure.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCEW(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIconW(nullptr, lpszIconName); }
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCEW(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const {
        return ::LoadCursorW(nullptr, lpszCursorName);
    }

  private:
    CString m_strAppName;
    CString m_strExeName;
};

// What wWinMain does. Null-safe for programs without a CWinApp (answers 1).
AFXFRAME_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                   int nCmdShow);

// Null in programs that are not the framework's.
AFXFRAME_API CWinApp* AFXAPI AfxGetApp();
AFXFRAME_API LPCTSTR AFXAPI AfxGetAppName(); // never null

// The message box of the program: nType MB_*, title the program's name; the help id is accepted and unused.
// Returns the button's id, 0 when the box could not be shown. The second form takes a string of the resource
// chain; a missing one shows its number.
AFXFRAME_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFXFRAME_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK,
                                      UINT nIDHelp = static_cast<UINT>(-1));
