// Which object stands for which window: an open hash table, because every message looks into it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <utility>
#include <vector>

class CWnd;

class WndMap {
  public:
    CWnd* Find(HWND hWnd) const {
        if (m_slots.empty())
            return nullptr;
        for (size_t i = Home(hWnd);; i = Next(i)) {
            if (m_slots[i].hWnd == hWnd)
                return m_slots[i].wnd;
            if (!m_slots[i].hWnd)
                return nullptr;
        }
    }
    // The handle must not be in the table.
    void Add(HWND hWnd, CWnd* wnd) {
        if (2 * (m_count + 1) > m_slots.size())
            Grow();
        Put(hWnd, wnd);
        ++m_count;
    }
    void Remove(HWND hWnd) {
        if (!Find(hWnd))
            return;
        size_t hole = Home(hWnd);
        while (m_slots[hole].hWnd != hWnd)
            hole = Next(hole);
        // Close the gap: later entries of the same run move up unless they stand before their home slot.
        for (size_t i = Next(hole); m_slots[i].hWnd; i = Next(i)) {
            const size_t home = Home(m_slots[i].hWnd);
            const bool canMove = hole <= i ? (home <= hole || home > i) : (home <= hole && home > i);
            if (canMove)
                m_slots[std::exchange(hole, i)] = m_slots[i];
        }
        m_slots[hole] = Slot();
        --m_count;
    }

  private:
    struct Slot {
        HWND hWnd = nullptr;
        CWnd* wnd = nullptr;
    };
    static constexpr size_t kFirstSize = 64; // a power of two

    size_t Home(HWND hWnd) const {
        constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15u;
        const std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(hWnd) * kSpread;
        return static_cast<size_t>(mixed >> 32) & (m_slots.size() - 1);
    }
    size_t Next(size_t i) const { return (i + 1) & (m_slots.size() - 1); }
    void Put(HWND hWnd, CWnd* wnd) {
        size_t i = Home(hWnd);
        while (m_slots[i].hWnd)
            i = Next(i);
        m_slots[i].hWnd = hWnd;
        m_slots[i].wnd = wnd;
    }
    void Grow() {
        std::vector<Slot> old(m_slots.empty() ? kFirstSize : m_slots.size() * 2);
        old.swap(m_slots);
        for (const Slot& slot : old)
            if (slot.hWnd)
                Put(slot.hWnd, slot.wnd);
    }

    std::vector<Slot> m_slots;
    size_t m_count = 0;
};
