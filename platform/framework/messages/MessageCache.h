// Finds the handlers of window messages in a class's message map and remembers them, also that there is none.
#pragma once

#include "afx/MessageMap.h"

#include <array>
#include <cstdint>

class MessageCache {
  public:
    // The row of the map, or of the maps of its base classes, for a window message; null: no handler.
    const AFX_MSGMAP_ENTRY* Find(const AFX_MSGMAP* map, UINT message);
    // Every thread forgets what it remembers: message maps went away with a module.
    static void Invalidate();

  private:
    struct Slot {
        const AFX_MSGMAP* map = nullptr;
        UINT message = 0;
        const AFX_MSGMAP_ENTRY* entry = nullptr;
    };
    static constexpr size_t kSlots = 1024; // a power of two
    std::array<Slot, kSlots> m_slots;
    std::uint32_t m_generation = 0;
};
