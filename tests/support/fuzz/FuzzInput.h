// What a fuzz target makes of its bytes, and how it says that something is wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace fuzz {

// Ends the program, which is a finding, when something does not hold.
inline void Check(bool holds) {
    if (!holds)
        std::abort();
}

// The bytes as units of 16 bits; an odd one at the end is left out.
inline std::wstring UnitsOf(const uint8_t* data, std::size_t size) {
    std::wstring text;
    for (std::size_t i = 0; i + 1 < size; i += 2)
        text += static_cast<wchar_t>(data[i] | data[i + 1] << 8);
    return text;
}

} // namespace fuzz
