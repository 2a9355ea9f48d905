#include "ProcessPeak.h"
#include <windows.h>
#include <psapi.h>

namespace psdtest {

std::size_t processPeakBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    return GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters))
               ? counters.PeakWorkingSetSize
               : 0;
}

} // namespace psdtest
