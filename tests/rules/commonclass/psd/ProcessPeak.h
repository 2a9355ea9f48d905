#pragma once

#include <cstddef>

namespace psdtest {

// The most memory this process ever had in use, in bytes.
std::size_t processPeakBytes();

} // namespace psdtest
