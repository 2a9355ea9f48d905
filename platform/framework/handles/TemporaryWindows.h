// The temporary objects of a thread's windows that have no object of their own.
#pragma once

#include "afx/Wnd.h"

#include <memory>
#include <unordered_map>
#include <vector>

// Each has a serial number, so that a nested loop removes only what was made since it began.
class TemporaryWindows {
  public:
    TemporaryWindows() = default;
    ~TemporaryWindows() { RemoveSince(0); }
    TemporaryWindows(const TemporaryWindows&) = delete;
    TemporaryWindows& operator=(const TemporaryWindows&) = delete;

    CWnd* FindOrMake(HWND hWnd);
    // The object of a handle that Detach takes away lives on until it is removed with the others.
    void Retire(HWND hWnd, const CWnd* pWnd);
    unsigned long long NextSerial() const { return m_nextSerial; }
    void RemoveSince(unsigned long long serial);
    // Those whose window is gone. Programs that run a loop of their own have no other clean-up.
    void RemoveDead();
    size_t Count() const { return m_windows.size() + m_retired.size(); }

  private:
    struct Temporary {
        std::unique_ptr<CWnd> wnd;
        unsigned long long serial = 0;
    };
    std::unordered_map<HWND, Temporary> m_windows;
    std::vector<Temporary> m_retired;
    unsigned long long m_nextSerial = 0;
};
