#pragma once

#include "PsdReading.h"

namespace psdtest {

// Asking for the peak takes longer than reading a small document, and small ones do not reach the limit unless their
// lengths are believed: those are met in the tests of spoiled fields, one document each.
enum class Memory { Watched, Unwatched };

// Reads a document that may be broken, and fails the test when that takes over 0.1 s or over 32 MB, or when a reading
// that failed gives names.
Reading readBounded(const Bytes& bytes, Memory memory = Memory::Watched);

} // namespace psdtest
