// The library as an extension module of the framework: attach, detach, module-wide state.
#include "QVModule.h"

#include "StoredPaths.h"
#include "QVColorSpaceLib.h"

#ifndef QV_STATIC_LINK
#include <afxdllx.h>
#endif

namespace _qv_commonwnd {

HINSTANCE g_hCommonWndInst = nullptr;
_qv_commonctrl::CQVDirListCtrl* g_pDirListWnd = nullptr;
CWnd* g_pCommonWnd = nullptr;

namespace {

CQVColorSpaceLib g_colorSpaceLib;

template <class Window> void ReleaseWindow(Window*& slot) {
    if (!slot)
        return;
    // Emptied first: destroying the window may bring a handler of the host back here.
    Window* window = slot;
    slot = nullptr;
    window->DestroyWindow();
    delete window;
}

} // namespace

void QV_InitCommonWnd() {
}

void QV_ReleaseCommonWnd() {
    constexpr int kShownFolder = -1;
    if (g_pDirListWnd && g_pDirListWnd->m_hWnd) { // a list without window cannot say what it showed
        CString path;
        g_pDirListWnd->GetPathName(path, kShownFolder);
        StorePath(kFilePathKey, path);
    }
    ReleaseWindow(g_pDirListWnd);
    ReleaseWindow(g_pCommonWnd);
}

} // namespace _qv_commonwnd

#ifdef QV_STATIC_LINK

namespace {

// In one program with the host the templates are the program's own.
const bool g_instanceKept = [] {
    _qv_commonwnd::g_hCommonWndInst = GetModuleHandleW(nullptr);
    return true;
}();

} // namespace

#else

static AFX_EXTENSION_MODULE g_commonWndModule = {};

static BOOL AttachModule(HINSTANCE instance) {
    if (!AfxInitExtensionModule(g_commonWndModule, instance))
        return FALSE;
    _qv_commonwnd::g_hCommonWndInst = instance;
    try {
        new CDynLinkLibrary(g_commonWndModule, FALSE);
    } catch (...) {
        // Without its place in the chain only the dialogs that name their module find their templates.
    }
    return TRUE;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID);
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        return AttachModule(instance);
    if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(g_commonWndModule, FALSE);
    return TRUE;
}

#endif
