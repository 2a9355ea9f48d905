// One object of a type per thread, deleted when the thread ends.
#pragma once

#include <windows.h>

#include <utility>

// A fibre-local slot calls back when its thread ends, and for all threads when it is freed: no thread keeps
// objects whose code is gone.
template <class T> class FiberSlot {
  public:
    FiberSlot() : m_index(::FlsAlloc(&FiberSlot::Delete)) {}
    // Closes first: objects that are deleted now may ask for the slot again.
    ~FiberSlot() {
        const DWORD index = std::exchange(m_index, FLS_OUT_OF_INDEXES);
        if (index != FLS_OUT_OF_INDEXES)
            ::FlsFree(index);
    }
    FiberSlot(const FiberSlot&) = delete;
    FiberSlot& operator=(const FiberSlot&) = delete;

    // False once the slot is freed, and when the process had none left to give.
    bool IsOpen() const { return m_index != FLS_OUT_OF_INDEXES; }
    // Null when the thread has none, or the slot is closed.
    T* Value() const { return IsOpen() ? static_cast<T*>(::FlsGetValue(m_index)) : nullptr; }
    // Takes the value over unless it fails.
    bool SetValue(T* value) const { return IsOpen() && ::FlsSetValue(m_index, value); }

  private:
    static void WINAPI Delete(PVOID value) { delete static_cast<T*>(value); }

    DWORD m_index;
};
