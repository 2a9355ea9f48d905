// The lists of creatable classes, and the lock that guards all module-wide lists.
#pragma once

#include "afxstat_.h"

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
