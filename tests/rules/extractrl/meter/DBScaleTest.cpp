#include "QVDBScale.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using _qv_extractrl::QVX_DBToPos;

TEST(DBScale, KneesAndMidpoints) {
    const double rows[][2] = {
        {-1e9, 0},   {-120.001, 0}, {-120, 0}, {-90, 5.5}, {-60, 11}, {-50, 18},  {-40, 25},
        {-35, 31.5}, {-30, 38},     {-25, 46}, {-20, 54},  {-16, 62}, {-12, 70},  {-9, 77},
        {-6, 84},    {-4.5, 88},    {-3, 92},  {-1.5, 96}, {0, 100},  {0.5, 100}, {1e9, 100},
    };
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(QVX_DBToPos(row[0]), row[1]) << row[0] << " dB";
}

TEST(DBScale, NotFinite) {
    using Limits = std::numeric_limits<double>;
    EXPECT_EQ(QVX_DBToPos(-Limits::infinity()), 0.0);
    EXPECT_EQ(QVX_DBToPos(Limits::infinity()), 100.0);
    EXPECT_EQ(QVX_DBToPos(Limits::quiet_NaN()), 0.0);
}

TEST(DBScale, RisesWithoutJumps) {
    double before = QVX_DBToPos(-125.0);
    for (double dB = -125.0; dB <= 3.0; dB += 0.01) {
        const double now = QVX_DBToPos(dB);
        ASSERT_GE(now, before) << dB;
        ASSERT_LE(now - before, 0.0268) << dB;
        before = now;
    }
}

} // namespace
