// The thread's slot for its temporary objects, and their removal.
#include "ThreadTemporaries.h"
#include "thread/FiberSlot.h"
#include "afx/MemoryException.h"

#include <memory>

namespace {

FiberSlot<ThreadTemporaries>& ThreadSlot() {
    static FiberSlot<ThreadTemporaries> slot;
    return slot;
}

// Made while the library is loaded at the latest: a slot that the first destructor of the unloading asked for
// would never be given back.
[[maybe_unused]] const FiberSlot<ThreadTemporaries>& g_slotFromLoadOn = ThreadSlot();

} // namespace

ThreadTemporaries& ThreadTemporaries::Get() {
    if (ThreadTemporaries* const existing = GetExisting())
        return *existing;
    auto made = std::make_unique<ThreadTemporaries>();
    if (!ThreadSlot().SetValue(made.get()))
        AfxThrowMemoryException();
    return *made.release();
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
