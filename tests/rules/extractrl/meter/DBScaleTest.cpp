#include "QVDBScale.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using _qv_extractrl::QVX_DBToPos;

TEST(DBScale, KneesAndMidpoints) {
    const double rows[][2] = {
        {-1e9, 0},  {-120, 0},    {-70.001, 0}, {-70, 0},    {-66, 1},  {-60, 2.5}, {-55, 5},
        {-50, 7.5}, {-45, 11.25}, {-40, 15},    {-35, 22.5}, {-30, 30}, {-25, 40},  {-20, 50},
        {-12, 70},  {-6, 85},     {-3, 92.5},   {-1, 97.5},  {0, 100},  {0.5, 100}, {1e9, 100},
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
    double before = QVX_DBToPos(-80.0);
    for (double dB = -80.0; dB <= 3.0; dB += 0.01) {
        const double now = QVX_DBToPos(dB);
        ASSERT_GE(now, before) << dB;
        ASSERT_LE(now - before, 0.0251) << dB;
        before = now;
    }
}

} // namespace
