// The one lock of the module lists.
#include "ModuleLock.h"

#include <atomic>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

// Holds nothing of the system and has no destructor: modules that unload after the framework's static objects
// are gone still take it, and unloading the framework leaves nothing behind.
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
