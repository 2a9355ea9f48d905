// CWinThread: a thread with a message loop, and the loop's single steps.
#pragma once

#include "Wnd.h"

class CException;

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

// Null in threads that are not the framework's.
AFXFRAME_API CWinThread* AFXAPI AfxGetThread();
AFXFRAME_API CWnd* AFXAPI AfxGetMainWnd();

// One turn of the message loop of any thread: waits for a message, translates and dispatches it. FALSE when
// it was WM_QUIT.
AFXFRAME_API BOOL AFXAPI AfxPumpMessage();
AFXFRAME_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
AFXFRAME_API void AFXAPI AfxPostQuitMessage(int nExitCode);
