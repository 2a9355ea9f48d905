#include "ThreadTemporaries.h"

namespace {

// A fibre-local slot calls back when its thread ends, and for all threads when it is freed: no thread keeps
// objects whose code is gone.
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

    ThreadTemporaries* Value() const {
        return m_index != FLS_OUT_OF_INDEXES ? static_cast<ThreadTemporaries*>(::FlsGetValue(m_index))
                                             : nullptr;
    }
    ThreadTemporaries& MakeValue() {
        std::unique_ptr<ThreadTemporaries> made = std::make_unique<ThreadTemporaries>();
        if (m_index == FLS_OUT_OF_INDEXES || !::FlsSetValue(m_index, made.get()))
            AfxThrowMemoryException();
        return *made.release();
    }

  private:
    static void WINAPI Delete(PVOID value) { delete static_cast<ThreadTemporaries*>(value); }

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

ThreadTemporaries& ThreadTemporaries::Get() {
    ThreadTemporaries* const existing = GetExisting();
    return existing ? *existing : ThreadSlot().MakeValue();
}

ThreadTemporaries* ThreadTemporaries::GetExisting() {
    return ThreadSlot().Value();
}

unsigned long long ThreadTemporaries::NextSerial() {
    const ThreadTemporaries* const existing = GetExisting();
    return existing ? existing->nextSerial : 0;
}

void ThreadTemporaries::RemoveSince(unsigned long long serial) {
    ThreadTemporaries* const existing = GetExisting();
    if (!existing)
        return;
    existing->gdiObjects.RemoveSince(serial);
    existing->dcs.RemoveSince(serial);
    existing->menus.RemoveSince(serial);
    existing->imageLists.RemoveSince(serial);
}
