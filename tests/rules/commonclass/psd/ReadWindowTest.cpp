#include "documents/MemorySource.h"
#include "psd/ReadWindow.h"
#include <gtest/gtest.h>
#include <numeric>

namespace psdtest {

namespace {

using _qv_commonclass::psd::ReadWindow;

Bytes counting(std::size_t size) {
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 131 >> 3);
    return bytes;
}

TEST(ReadWindow, GivesTheBytesAsked) {
    const Bytes bytes = counting(300'000);
    MemorySource source(bytes);
    ReadWindow window(source);
    // Every step straddles the windows differently.
    for (std::size_t at = 0; at + 700 <= bytes.size(); at += 693) {
        const std::uint8_t* got = window.bytesAt(at, 700);
        ASSERT_NE(got, nullptr);
        ASSERT_TRUE(std::equal(got, got + 700, bytes.begin() + static_cast<std::ptrdiff_t>(at))) << at;
    }
}

TEST(ReadWindow, ReadsNothingTwice) {
    const Bytes bytes = counting(500'000);
    MemorySource source(bytes);
    ReadWindow window(source);
    for (std::size_t at = 0; at + 90 <= bytes.size(); at += 77)
        ASSERT_NE(window.bytesAt(at, 90), nullptr);
    EXPECT_LE(source.bytesRead, bytes.size());
}

TEST(ReadWindow, GrowsWhenEverythingIsUsed) {
    const Bytes bytes = counting(1'000'000);
    MemorySource source(bytes);
    ReadWindow window(source);
    for (std::size_t at = 0; at + 100 <= bytes.size(); at += 100)
        ASSERT_NE(window.bytesAt(at, 100), nullptr);
    EXPECT_LE(source.reads, bytes.size() / ReadWindow::kWideBytes + 6);
}

TEST(ReadWindow, StaysNarrowOverLongSkips) {
    const Bytes bytes = counting(3'000'000);
    MemorySource source(bytes);
    ReadWindow window(source);
    std::uint64_t asked = 0;
    for (std::size_t at = 0; at + 100 <= bytes.size(); at += 30'000, ++asked)
        ASSERT_NE(window.bytesAt(at, 100), nullptr);
    EXPECT_LE(source.bytesRead, asked * ReadWindow::kNarrowBytes);
}

TEST(ReadWindow, RefusesWhatIsNotThere) {
    const Bytes bytes = counting(100);
    MemorySource source(bytes);
    ReadWindow window(source);
    EXPECT_EQ(window.bytesAt(0, 101), nullptr);
    EXPECT_EQ(window.bytesAt(101, 0), nullptr);
    EXPECT_EQ(window.bytesAt(~std::uint64_t{0}, 1), nullptr);
    EXPECT_FALSE(window.failed());
    EXPECT_NE(window.bytesAt(0, 100), nullptr);
    EXPECT_EQ(window.bytesAt(0, ReadWindow::kMaxRequestBytes + 1), nullptr);
}

} // namespace

} // namespace psdtest
