#include "ThreadState.h"
#include "ThreadTemporaries.h"

#include <utility>

namespace {

// A fibre-local slot calls back when its thread ends, and for all threads when it is freed.
class Slot {
  public:
    Slot() : m_index(::FlsAlloc(&Slot::Delete)) {}
    ~Slot() {
        const DWORD index = std::exchange(m_index, FLS_OUT_OF_INDEXES);
        if (index != FLS_OUT_OF_INDEXES)
            ::FlsFree(index);
    }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    AfxThreadState& Value() {
        if (m_index == FLS_OUT_OF_INDEXES)
            return Late();
        if (void* const value = ::FlsGetValue(m_index))
            return *static_cast<AfxThreadState*>(value);
        auto* const made = new AfxThreadState;
        ::FlsSetValue(m_index, made);
        return *made;
    }

    AfxThreadState* Existing() const {
        return m_index != FLS_OUT_OF_INDEXES ? static_cast<AfxThreadState*>(::FlsGetValue(m_index)) : nullptr;
    }

  private:
    // After the slot is gone only destructors of the ending process ask; what they get is never freed.
    static AfxThreadState& Late() {
        static AfxThreadState* const late = new AfxThreadState;
        return *late;
    }
    static void WINAPI Delete(PVOID value) { delete static_cast<AfxThreadState*>(value); }

    DWORD m_index;
};

Slot& ThreadSlot() {
    static Slot slot;
    return slot;
}

// Made while the library is loaded at the latest: a slot that the first destructor of the unloading asked for would
// never be given back.
[[maybe_unused]] const Slot& g_slotFromLoadOn = ThreadSlot();

} // namespace

AfxThreadState& AfxThreadState::Get() {
    return ThreadSlot().Value();
}

AfxThreadState* AfxThreadState::GetExisting() {
    return ThreadSlot().Existing();
}

TemporaryScope::TemporaryScope()
    : m_firstWindow(AfxThreadState::Get().temporaryWindows.NextSerial()),
      m_firstOther(ThreadTemporaries::NextSerial()) {
}

void TemporaryScope::Remove() const {
    AfxThreadState::Get().temporaryWindows.RemoveSince(m_firstWindow);
    ThreadTemporaries::RemoveSince(m_firstOther);
}

CWnd* TemporaryWindows::FindOrMake(HWND hWnd) {
    Temporary& found = m_windows[hWnd];
    if (!found.wnd) {
        found.wnd = AfxWndAccess::MakeTemporary(hWnd);
        found.serial = m_nextSerial++;
    }
    return found.wnd.get();
}

void TemporaryWindows::Retire(HWND hWnd, const CWnd* pWnd) {
    const auto found = m_windows.find(hWnd);
    if (found == m_windows.end() || found->second.wnd.get() != pWnd)
        return;
    m_retired.push_back(std::move(found->second));
    m_windows.erase(found);
}

void TemporaryWindows::RemoveSince(unsigned long long serial) {
    const auto isNewer = [serial](const Temporary& temporary) { return temporary.serial >= serial; };
    std::erase_if(m_retired, isNewer);
    std::erase_if(m_windows, [&](const auto& item) { return isNewer(item.second); });
}

void TemporaryWindows::RemoveDead() {
    std::erase_if(m_windows, [](const auto& item) { return !::IsWindow(item.first); });
    m_retired.clear();
}

WndWatch::WndWatch(CWnd* pWnd) : m_pWnd(pWnd), m_pOuter(AfxThreadState::Get().watches) {
    AfxThreadState::Get().watches = this;
}

WndWatch::~WndWatch() {
    AfxThreadState::Get().watches = m_pOuter;
}

void WndWatch::OnDeleted(const CWnd* pWnd) {
    const AfxThreadState* const state = AfxThreadState::GetExisting();
    for (WndWatch* watch = state ? state->watches : nullptr; watch; watch = watch->m_pOuter)
        if (watch->m_pWnd == pWnd)
            watch->m_pWnd = nullptr;
}
