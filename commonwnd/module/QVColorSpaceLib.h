// The colour-space library, kept for as long as the module is loaded.
#pragma once

#include <windows.h>

namespace _qv_commonwnd {

// Finds the colour-space library while the module is loaded, keeps it, and frees it when the module goes. A
// search without result leaves both fields null; the rest of the library works without it.
class CQVColorSpaceLib {
  public:
    CQVColorSpaceLib();
    ~CQVColorSpaceLib();
    CQVColorSpaceLib(const CQVColorSpaceLib&) = delete;
    CQVColorSpaceLib& operator=(const CQVColorSpaceLib&) = delete;

    HMODULE hModule; // the library; null: none
    void* pApi;      // its interface, kept and never called; null exactly when hModule is
};

} // namespace _qv_commonwnd
