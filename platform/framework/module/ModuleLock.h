// The lock that guards the lists of modules, their classes and window classes, and the framework's own
// module.
#pragma once

#include <windows.h>

// Held for the length of a scope; may be nested on one thread.
class ModuleLock {
  public:
    ModuleLock();
    ~ModuleLock();
    ModuleLock(const ModuleLock&) = delete;
    ModuleLock& operator=(const ModuleLock&) = delete;
};

// The framework's own module, with its resources.
HINSTANCE AfxFrameworkInstance();
