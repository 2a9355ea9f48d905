// Ends a test that hangs, whatever it hangs in: says what ran, saves a picture of the screen, writes every thread's
// stack and ends the process. The entry of the test programs gives each test its time; each visit of a leak check, each
// script and each entry of the gallery's tour gets its own.
#pragma once

#include <windows.h>

#include <string>

namespace qvtest {

class Watchdog {
  public:
    static constexpr DWORD kLimitMs = 60000; // QV_TEST_LIMIT_MS in the environment: another one
    static constexpr UINT kExitCode = 71;

    // From now on `what` has so much time. The first call starts the watching thread.
    static void begin(const std::string& what, DWORD limitMs = kLimitMs);
    // What goes on within that time, for the message.
    static void note(const std::string& step);
    // Nothing is under way.
    static void end();
};

} // namespace qvtest
