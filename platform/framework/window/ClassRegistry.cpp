// Window classes: registered here, they are taken back with the module they belong to.
#include "ClassRegistry.h"
#include "module/ModuleLock.h"
#include "thread/ThreadState.h"
#include "afx/Resources.h"
#include "afx/WndClass.h"

#include <string>
#include <vector>

namespace {

struct RegisteredClass {
    std::wstring name;
    HINSTANCE hInstance;
};

class ClassRegistry {
  public:
    ClassRegistry() = default;
    ~ClassRegistry() { Remove(nullptr); }
    ClassRegistry(const ClassRegistry&) = delete;
    ClassRegistry& operator=(const ClassRegistry&) = delete;

    void Add(LPCTSTR name, HINSTANCE hInstance) { m_classes.push_back({name, hInstance}); }
    void Remove(HINSTANCE hInstance) {
        std::erase_if(m_classes, [hInstance](const RegisteredClass& entry) {
            if (hInstance && entry.hInstance != hInstance)
                return false;
            ::UnregisterClassW(entry.name.c_str(), entry.hInstance);
            return true;
        });
    }

  private:
    std::vector<RegisteredClass> m_classes;
};

ClassRegistry& Registry() {
    static ClassRegistry registry;
    return registry;
}

} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    if (!lpWndClass || !lpWndClass->lpszClassName)
        return FALSE;
    const ModuleLock lock;
    WNDCLASS known = {};
    if (::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &known))
        return TRUE;
    if (!::RegisterClassW(lpWndClass))
        return FALSE;
    if (!IS_INTRESOURCE(lpWndClass->lpszClassName))
        Registry().Add(lpWndClass->lpszClassName, lpWndClass->hInstance);
    return TRUE;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    WNDCLASS wc = {};
    wc.style = nClassStyle;
    wc.lpfnWndProc = AfxWndProc;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.hIcon = hIcon;
    auto& name = AfxThreadState::Get().className;
    // The name tells every property apart, so that equal requests share a class.
    ::wsprintfW(name, L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(wc.hInstance), nClassStyle,
                static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    wc.lpszClassName = name;
    return AfxRegisterClass(&wc) ? name : nullptr;
}

void AfxUnregisterClasses(HINSTANCE hInstance) {
    const ModuleLock lock;
    Registry().Remove(hInstance);
}
