#include "ThreadState.h"
#include "ThreadTemporaries.h"
#include "FiberSlot.h"

namespace {

FiberSlot<AfxThreadState>& ThreadSlot() {
    static FiberSlot<AfxThreadState> slot;
    return slot;
}

// Made while the library is loaded at the latest: a slot that the first destructor of the unloading asked for would
// never be given back.
[[maybe_unused]] const FiberSlot<AfxThreadState>& g_slotFromLoadOn = ThreadSlot();

// After the slot is gone only destructors of the ending process ask; what they get is never freed.
AfxThreadState& LateState() {
    static AfxThreadState* const late = new AfxThreadState;
    return *late;
}

} // namespace

AfxThreadState& AfxThreadState::Get() {
    const FiberSlot<AfxThreadState>& slot = ThreadSlot();
    if (!slot.IsOpen())
        return LateState();
    if (AfxThreadState* const value = slot.Value())
        return *value;
    auto* const made = new AfxThreadState;
    slot.SetValue(made);
    return *made;
}

AfxThreadState* AfxThreadState::GetExisting() {
    return ThreadSlot().Value();
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
