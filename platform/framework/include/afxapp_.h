// The program's and the threads' objects, the message loop, and the functions around them.
//
//     class CMyApp : public CWinApp {
//         BOOL InitInstance() override { m_pMainWnd = ...; return TRUE; }
//     };
//     CMyApp theApp; // link the program with AfxFrameMain, which brings wWinMain
//
// None of this is needed to use windows and dialogs: a program without a CWinApp runs its own loop, and modal
// dialogs run theirs.
#pragma once

#include "afxstat_.h"
#include "afxwnd_.h"

class AFXFRAME_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
  public:
    CWnd* m_pMainWnd = nullptr; // the loop ends when this window is destroyed
    CWnd* m_pActiveMainWnd = nullptr;
    DWORD m_nThreadID = 0;

    CWinThread();
    ~CWinThread() override;

    virtual BOOL InitInstance();           // FALSE: the program ends at once
    virtual int Run();                     // returns the exit code
    virtual int ExitInstance();            // returns the exit code
    virtual BOOL PumpMessage();            // FALSE when WM_QUIT came
    virtual BOOL OnIdle(LONG lCount);      // TRUE: call again while the queue is empty
    virtual BOOL IsIdleMessage(MSG* pMsg); // FALSE for messages that come often and change nothing
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // What a window procedure answers when a handler let an exception go; also tells the user when it has a
    // text.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd(); // null when there is none
};

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

// Null in programs and threads that are not the framework's.
AFXFRAME_API CWinApp* AFXAPI AfxGetApp();
AFXFRAME_API CWinThread* AFXAPI AfxGetThread();
AFXFRAME_API CWnd* AFXAPI AfxGetMainWnd();
AFXFRAME_API LPCTSTR AFXAPI AfxGetAppName(); // never null

// One turn of the message loop of any thread: waits for a message, translates and dispatches it. FALSE when
// it was WM_QUIT.
AFXFRAME_API BOOL AFXAPI AfxPumpMessage();
AFXFRAME_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
AFXFRAME_API void AFXAPI AfxPostQuitMessage(int nExitCode);

// The message box of the program: nType MB_*, title the program's name; the help id is accepted and unused.
// Returns the button's id, 0 when the box could not be shown. The second form takes a string of the resource
// chain; a missing one shows its number.
AFXFRAME_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFXFRAME_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK,
                                      UINT nIDHelp = static_cast<UINT>(-1));

// Registers (once) a window class of the framework's procedure with these properties and returns its name, a
// static text of the calling thread, valid until the next call. Null on failure.
AFXFRAME_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
// Registers a class unless its name is registered for the instance already. Classes registered through here
// are unregistered with the module that registered them.
AFXFRAME_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
