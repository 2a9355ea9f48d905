// Keeps the system from asking the user about a missing disk while a folder or library is looked for.
#pragma once

#include <windows.h>

namespace _qv_commonwnd {

// For the calling thread, until the end of the scope; what was quiet already stays so. (The system's boxes of
// this kind come up over whatever the user does, and block the thread until they are answered.)
class QuietErrors {
  public:
    QuietErrors() {
        ::SetThreadErrorMode(::GetThreadErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX,
                             &m_former);
    }
    ~QuietErrors() { ::SetThreadErrorMode(m_former, nullptr); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

  private:
    DWORD m_former = 0;
};

} // namespace _qv_commonwnd
