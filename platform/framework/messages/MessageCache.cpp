// The search through message maps, and what was found remembered by map and message.
#include "MessageCache.h"

#include <atomic>

namespace {

std::atomic<std::uint32_t> g_generation{0};

bool IsRowOf(const AFX_MSGMAP_ENTRY& entry, UINT message) {
    if (entry.nMessage == kAfxRegisteredMessage)
        return message >= kAfxRegisteredMessage && *reinterpret_cast<const UINT*>(entry.nSig) == message;
    return entry.nMessage == message && entry.nSig >= AfxSig_firstWnd;
}

const AFX_MSGMAP_ENTRY* Search(const AFX_MSGMAP* map, UINT message) {
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
            if (IsRowOf(*entry, message))
                return entry;
    return nullptr;
}

} // namespace

const AFX_MSGMAP_ENTRY* MessageCache::Find(const AFX_MSGMAP* map, UINT message) {
    const std::uint32_t generation = g_generation.load(std::memory_order_acquire);
    if (generation != m_generation) {
        m_slots.fill(Slot());
        m_generation = generation;
    }
    constexpr unsigned kMapAlignmentBits = 5;
    const size_t hash = (reinterpret_cast<size_t>(map) >> kMapAlignmentBits) * 31 + message;
    Slot& slot = m_slots[hash & (kSlots - 1)];
    if (slot.map != map || slot.message != message)
        slot = {map, message, Search(map, message)};
    return slot.entry;
}

void MessageCache::Invalidate() {
    g_generation.fetch_add(1, std::memory_order_acq_rel);
}
