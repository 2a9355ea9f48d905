// Which module a resource comes from.
#include "ModuleLock.h"
#include "afx/DynLinkLibrary.h"
#include "afx/Resources.h"

#include <initializer_list>

namespace {

// Asks the modules in their order until one says yes; null when none does.
template <class ACCEPT> HINSTANCE FirstModule(ACCEPT accepts) {
    const HINSTANCE current = AfxGetResourceHandle();
    if (accepts(current))
        return current;
    const ModuleLock lock;
    const CDynLinkLibrary* const first = AfxGetAppModuleState()->m_pLibraryList;
    for (const BOOL bSystem : {FALSE, TRUE})
        for (const CDynLinkLibrary* library = first; library; library = library->m_pNextDLL)
            if (!library->m_bSystem == !bSystem && library->m_hResource && accepts(library->m_hResource))
                return library->m_hResource;
    const HINSTANCE framework = AfxFrameworkInstance();
    return accepts(framework) ? framework : nullptr;
}

} // namespace

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE found = FirstModule(
        [=](HINSTANCE hModule) { return ::FindResourceW(hModule, lpszName, lpszType) != nullptr; });
    return found ? found : AfxGetResourceHandle();
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (!lpszBuf || !nMaxBuf)
        return 0;
    *lpszBuf = L'\0';
    int length = 0;
    FirstModule([&](HINSTANCE hModule) {
        length = ::LoadStringW(hModule, nIDS, lpszBuf, static_cast<int>(nMaxBuf));
        return length > 0;
    });
    return length;
}
