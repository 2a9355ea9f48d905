// An extension module as small as can be: two classes that can be made by name, one dialog template, one string.
#include "afxwin.h"
#include "afxdllx.h"

#include "ExtensionIds.h"

class CExtensionThing : public CObject {
    DECLARE_DYNCREATE(CExtensionThing)
};
IMPLEMENT_DYNCREATE(CExtensionThing, CObject)

class CExtensionWnd : public CWnd {
    DECLARE_DYNCREATE(CExtensionWnd)
  protected:
    afx_msg LRESULT OnAsk(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CExtensionWnd, CWnd)
BEGIN_MESSAGE_MAP(CExtensionWnd, CWnd)
    ON_MESSAGE(WM_APP, &CExtensionWnd::OnAsk)
END_MESSAGE_MAP()

namespace {

AFX_EXTENSION_MODULE g_module = {};

// Set to refuse the load after the static objects are there.
bool IsRefused() {
    return ::GetEnvironmentVariableW(L"QV_TEST_EXTENSION_REFUSES", nullptr, 0) != 0;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (IsRefused() || !AfxInitExtensionModule(g_module, hInstance))
            return FALSE;
        new CDynLinkLibrary(g_module);
        WNDCLASS wc = {};
        wc.lpfnWndProc = AfxWndProc;
        wc.hInstance = hInstance;
        wc.lpszClassName = kExtensionWindowClass;
        AfxRegisterClass(&wc);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_module);
    }
    return TRUE;
}
