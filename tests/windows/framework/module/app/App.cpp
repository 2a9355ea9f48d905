// A program of the framework: opens a frame window, runs its loop, and ends when the window closes itself.
// Exit codes tell the test how far it came.
#include "afxwin.h"

namespace {

constexpr int kWrongStart = 21;
constexpr int kWrongEnd = 22;
constexpr int kFine = 42;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kTimerMs = 10;

} // namespace

class CMainWnd : public CFrameWnd {
  public:
    int m_nTicks = 0;

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        SetTimer(kTimer, kTimerMs, nullptr);
        return CFrameWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnTimer(UINT_PTR) {
        constexpr int kTicksUntilClose = 5;
        if (++m_nTicks == kTicksUntilClose)
            PostMessage(WM_CLOSE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMainWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

class CTestApp : public CWinApp {
  public:
    CTestApp() : CWinApp(L"Test program") {}

    BOOL InitInstance() override {
        m_bStarted = AfxGetApp() == this && AfxGetThread() == this &&
                     CString(m_pszAppName) == L"Test program" && CString(m_lpCmdLine) == L"one two" &&
                     AfxGetInstanceHandle() == m_hInstance;
        auto* const frame = new CMainWnd;
        m_pMainWnd = frame;
        if (!frame->Create(nullptr, L"Main"))
            return FALSE;
        frame->ShowWindow(m_nCmdShow);
        return AfxGetMainWnd() == frame;
    }
    BOOL OnIdle(LONG lCount) override {
        ++m_nIdle;
        return CWinApp::OnIdle(lCount);
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        if (!m_bStarted)
            return kWrongStart;
        return m_nIdle > 0 && !m_pMainWnd ? kFine : kWrongEnd;
    }

  private:
    BOOL m_bStarted = FALSE;
    int m_nIdle = 0;
};

CTestApp theApp;
