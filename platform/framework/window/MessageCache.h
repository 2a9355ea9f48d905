// Finds the handler of a window message in a class's message map and remembers it, also that there is none.
#pragma once

#include "afxmsg_.h"

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

// The row of a command or notification: nCode low word code, high word message (0: WM_COMMAND).
const AFX_MSGMAP_ENTRY* AfxFindCommandEntry(const AFX_MSGMAP* map, UINT nID, int nCode);
// Calls the handlers. pResult is set when TRUE is returned; FALSE asks for default processing.
BOOL AfxDispatchMessage(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam,
                        LRESULT* pResult);
BOOL AfxDispatchCommand(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, void* pExtra);
