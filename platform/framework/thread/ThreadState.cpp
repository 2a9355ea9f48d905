// The thread's slot for its state, and the state of a process that ends.
#include "ThreadState.h"
#include "FiberSlot.h"

namespace {

FiberSlot<AfxThreadState>& ThreadSlot() {
    static FiberSlot<AfxThreadState> slot;
    return slot;
}

// Made while the library is loaded at the latest: a slot that the first destructor of the unloading asked for
// would never be given back.
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
