// HeaderBytes.h: the first bytes of a file and the numbers in them.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <vector>

// At most `count` bytes from `offset` of a file; fewer or none when there are no more or it cannot be read.
std::vector<std::uint8_t> HeaderBytes(LPCWSTR path, size_t count, LONGLONG offset = 0);

// A number of `width` (1 to 4) bytes at `at`, which must lie inside: highest or lowest byte first.
std::uint32_t BigNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
std::uint32_t LittleNumber(const std::vector<std::uint8_t>& bytes, size_t at, int width);
