#include "ClassList.h"
#include "window/ThreadState.h"

#include <atomic>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

// Holds nothing of the system and has no destructor: modules that unload after the framework's static objects are gone
// still take it, and unloading the framework leaves nothing behind.
class NestingLock {
  public:
    void Enter() {
        const DWORD self = ::GetCurrentThreadId();
        if (m_owner.load(std::memory_order_relaxed) != self) { // only the owner finds its own number here
            ::AcquireSRWLockExclusive(&m_lock);
            m_owner.store(self, std::memory_order_relaxed);
        }
        ++m_depth;
    }
    void Leave() {
        if (--m_depth > 0)
            return;
        m_owner.store(0, std::memory_order_relaxed);
        ::ReleaseSRWLockExclusive(&m_lock);
    }

  private:
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::atomic<DWORD> m_owner = 0;
    int m_depth = 0;
};

constinit NestingLock g_listLock;

AFX_MODULE_STATE MakeAppState() {
    AFX_MODULE_STATE state = {};
    state.m_hCurrentInstanceHandle = ::GetModuleHandleW(nullptr);
    state.m_hCurrentResourceHandle = state.m_hCurrentInstanceHandle;
    state.m_lpszCurrentAppName = L"";
    return state;
}

} // namespace

ModuleLock::ModuleLock() {
    g_listLock.Enter();
}

ModuleLock::~ModuleLock() {
    g_listLock.Leave();
}

HINSTANCE AfxFrameworkInstance() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState() {
    static AFX_MODULE_STATE state = MakeAppState();
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    AFX_MODULE_STATE* const own = AfxThreadState::Get().moduleState;
    return own ? own : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) {
    AFX_MODULE_STATE* const former = AfxGetModuleState();
    AfxThreadState::Get().moduleState = pNewState;
    return former;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pNewState)
    : m_pPrevModuleState(AfxSetModuleState(pNewState)) {
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    AfxSetModuleState(m_pPrevModuleState);
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    AFX_MODULE_STATE& state = *AfxGetModuleState();
    state.m_hCurrentResourceHandle = hInstResource ? hInstResource : state.m_hCurrentInstanceHandle;
}
