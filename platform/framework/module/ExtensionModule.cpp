// Loading and unloading of extension modules: whose the classes are that static objects register meanwhile.
#include "ModuleLock.h"
#include "messages/MessageCache.h"
#include "window/ClassRegistry.h"
#include "afx/DynLinkLibrary.h"
#include "afx/Resources.h"

#include <memory>

namespace {

// The lists that were put aside while a module constructs its static objects. A module may load another one
// meanwhile, so they form a stack.
struct SavedLists {
    HINSTANCE hInstance = nullptr;
    CRuntimeClass* pClassList = nullptr;
    COleObjectFactory* pFactoryList = nullptr;
    std::unique_ptr<SavedLists> below = {};
};

// Plain pointer and no destructor: modules that unload after the framework's static objects are gone still
// look here.
constinit SavedLists* g_savedTop = nullptr;

bool Unlink(CRuntimeClass*& head, const CRuntimeClass* pClass) {
    for (CRuntimeClass** link = &head; *link; link = &(*link)->m_pNextClass)
        if (*link == pClass) {
            *link = pClass->m_pNextClass;
            return true;
        }
    return false;
}

template <class NODE> void Append(NODE*& head, NODE* tail) {
    NODE** link = &head;
    while (*link)
        link = &(*link)->m_pNextClass;
    *link = tail;
}

void PushSaved(HINSTANCE hInstance, const AFX_MODULE_STATE& state) {
    auto saved = std::make_unique<SavedLists>();
    saved->hInstance = hInstance;
    saved->pClassList = state.m_pClassList;
    saved->pFactoryList = state.m_pFactoryList;
    saved->below.reset(g_savedTop);
    g_savedTop = saved.release();
}

// Takes back what was put aside for the module; the classes registered meanwhile are in the state's list.
// Empty when nothing was.
std::unique_ptr<SavedLists> PopSaved(HINSTANCE hInstance) {
    SavedLists* above = nullptr;
    SavedLists* at = g_savedTop;
    for (; at && at->hInstance != hInstance; at = at->below.get())
        above = at;
    if (!at)
        return nullptr;
    SavedLists* const rest = at->below.release();
    std::unique_ptr<SavedLists> found(at);
    if (above) {
        static_cast<void>(above->below.release()); // is `found` now
        above->below.reset(rest);
    } else {
        g_savedTop = rest;
    }
    return found;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass) {
    const ModuleLock lock;
    AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    pNewClass->m_pNextClass = state.m_pClassList;
    state.m_pClassList = pNewClass;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    const ModuleLock lock;
    AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    bool done = Unlink(state.m_pClassList, m_pClass);
    for (CDynLinkLibrary* library = state.m_pLibraryList; library && !done; library = library->m_pNextDLL)
        done = Unlink(library->m_pClassList, m_pClass);
    for (SavedLists* saved = g_savedTop; saved && !done; saved = saved->below.get())
        done = Unlink(saved->pClassList, m_pClass);
}

BOOL AFXAPI AfxRawExtensionEntry(HINSTANCE hInstance, DWORD dwReason) {
    const ModuleLock lock;
    AFX_MODULE_STATE& state = *AfxGetAppModuleState();
    if (dwReason == DLL_PROCESS_ATTACH) {
        PushSaved(hInstance, state);
        state.m_pClassList = nullptr;
        state.m_pFactoryList = nullptr;
    } else if (dwReason == DLL_PROCESS_DETACH) {
        // Only a load that failed before AfxInitExtensionModule still has its lists put aside; the failed
        // module's classes take themselves out.
        if (const auto saved = PopSaved(hInstance)) {
            Append(state.m_pClassList, saved->pClassList);
            state.m_pFactoryList = saved->pFactoryList;
        }
    }
    return TRUE;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (!hModule)
        return FALSE;
    if (state.bInitialized)
        return TRUE;
    const ModuleLock lock;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    if (!state.hResource)
        state.hResource = hModule;
    AFX_MODULE_STATE& app = *AfxGetAppModuleState();
    if (const auto saved = PopSaved(hModule)) {
        state.pFirstSharedClass = app.m_pClassList;
        state.pFirstSharedFactory = app.m_pFactoryList;
        app.m_pClassList = saved->pClassList;
        app.m_pFactoryList = saved->pFactoryList;
    }
    MessageCache::Invalidate();
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized && !bAll)
        return;
    {
        const ModuleLock lock;
        CDynLinkLibrary* library = AfxGetAppModuleState()->m_pLibraryList;
        while (library) {
            CDynLinkLibrary* const next = library->m_pNextDLL;
            if (bAll || library->m_hModule == state.hModule)
                delete library;
            library = next;
        }
    }
    // The current resource handle must not outlive the module it names.
    if (state.hModule && AfxGetResourceHandle() == state.hModule)
        AfxSetResourceHandle(nullptr);
    AfxUnregisterClasses(state.hModule);
    MessageCache::Invalidate();
    state.bInitialized = FALSE;
    state.pFirstSharedClass = nullptr;
    state.pFirstSharedFactory = nullptr;
}
