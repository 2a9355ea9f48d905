// CWinApp: the program's object, its start, and its message box.
#include "dialog/DisabledOwner.h"
#include "handles/TemporaryScope.h"
#include "thread/ThreadState.h"
#include "afx/WinApp.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

// The program file's name without folder and extension.
CString ProgramName() {
    CString path;
    constexpr int kLongestPath = 32768;
    const DWORD length = ::GetModuleFileNameW(nullptr, path.GetBuffer(kLongestPath), kLongestPath);
    path.ReleaseBuffer(static_cast<int>(length));
    CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

// The window a message box belongs to: a box over a disabled or hidden owner would be lost.
HWND MessageBoxOwner(HWND* top) {
    *top = nullptr;
    if (CWnd* const owner = CWnd::GetSafeOwner(nullptr, top))
        return owner->m_hWnd;
    HWND active = ::GetActiveWindow();
    while (active && (::GetWindowLongPtrW(active, GWL_STYLE) & WS_CHILD))
        active = ::GetParent(active);
    return active ? ::GetLastActivePopup(active) : nullptr;
}

// A box without an icon gets the one that fits its buttons.
UINT WithIcon(UINT nType) {
    if (nType & MB_ICONMASK)
        return nType;
    switch (nType & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
        return nType | MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return nType | MB_ICONQUESTION;
    default:
        return nType;
    }
}

int ShowMessageBox(LPCTSTR lpszPrompt, UINT nType) {
    HWND top = nullptr;
    const HWND owner = MessageBoxOwner(&top);
    const int answer = ::MessageBoxW(owner, lpszPrompt ? lpszPrompt : L"", AfxGetAppName(), WithIcon(nType));
    EnableAgain(top);
    return answer;
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strExeName(ProgramName()) {
    m_strAppName = lpszAppName ? CString(lpszAppName) : m_strExeName;
    m_pszAppName = m_strAppName;
    m_pszExeName = m_strExeName;
    static wchar_t noArguments[] = L"";
    m_lpCmdLine = noArguments;
    m_hInstance = ::GetModuleHandleW(nullptr);
    AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    state.m_pCurrentWinApp = this;
    state.m_lpszCurrentAppName = m_pszAppName;
    AfxThreadState::Get().thread = this;
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    if (state.m_pCurrentWinApp == this) {
        state.m_pCurrentWinApp = nullptr;
        state.m_lpszCurrentAppName = L"";
    }
}

BOOL CWinApp::InitApplication() {
    return TRUE;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::Run() {
    if (!m_pMainWnd) // nothing would ever end the loop
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    return ShowMessageBox(lpszPrompt, nType);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIconW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursorW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    constexpr int kNoApplication = 1;
    CWinApp* const app = AfxGetApp();
    if (!app)
        return kNoApplication;
    app->m_hInstance = hInstance;
    if (lpCmdLine)
        app->m_lpCmdLine = lpCmdLine;
    app->m_nCmdShow = nCmdShow;
    if (!app->InitApplication())
        return kNoApplication;
    int code = 0;
    if (app->InitInstance()) {
        code = app->Run();
    } else {
        if (app->m_pMainWnd)
            app->m_pMainWnd->DestroyWindow();
        code = app->ExitInstance();
    }
    AfxDeleteTempObjects();
    return code;
}

CWinApp* AFXAPI AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AFXAPI AfxGetAppName() {
    const LPCTSTR name = AfxGetModuleState()->m_lpszCurrentAppName;
    if (name && *name)
        return name;
    static const CString program = ProgramName();
    return program;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    CWinApp* const app = AfxGetApp();
    return app ? app->DoMessageBox(lpszText, nType, nIDHelp) : ShowMessageBox(lpszText, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    constexpr UINT kLongestText = 4096;
    CString text;
    const int length = AfxLoadString(nIDPrompt, text.GetBuffer(kLongestText), kLongestText);
    text.ReleaseBuffer(length);
    if (length == 0)
        text.Format(L"%u", nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
