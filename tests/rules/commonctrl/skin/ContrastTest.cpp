// Texts must be readable on every ground they are drawn on, in every skin that is shipped.
#include "skin/SkinParse.h"
#include "StageFolder.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace _qv_commonctrl;

namespace {

constexpr double kLeastTextContrast = 4.5;
constexpr double kLeastMarkContrast = 3.0; // marks and icons, which are larger than letters' strokes

struct Pair {
    int front;
    int ground;
};

constexpr Pair kTextPairs[] = {
    {8, 525},  {8, 730},  {9, 15},   {9, 18},   {9, 19},    {9, 122},   {9, 159},  {9, 730},
    {9, 800},  {9, 801},  {9, 802},  {9, 807},  {9, 59},    {9, 64},    {10, 15},  {10, 18},
    {10, 122}, {10, 159}, {10, 807}, {12, 15},  {12, 18},   {12, 122},  {12, 159}, {12, 803},
    {12, 807}, {12, 62},  {12, 67},  {13, 160}, {13, 60},   {13, 61},   {13, 65},  {13, 66},
    {536, 15}, {536, 16}, {536, 19}, {705, 18}, {705, 525}, {705, 730},
};

constexpr Pair kMarkPairs[] = {
    {805, 18}, {805, 122}, {805, 800}, {740, 743}, {741, 743}, {742, 743}, {744, 743},
    {820, 18}, {820, 806}, {821, 122}, {821, 16},  {823, 122}, {823, 16},  {532 /* pen */, 525},
};

double channel(uint32_t value) {
    const double c = value / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(uint32_t rgb) {
    return 0.2126 * channel(rgb >> 16 & 0xFF) + 0.7152 * channel(rgb >> 8 & 0xFF) +
           0.0722 * channel(rgb & 0xFF);
}

double contrast(uint32_t a, uint32_t b) {
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

class ShippedSkin : public testing::TestWithParam<const wchar_t*> {
  protected:
    void SetUp() override {
        const std::wstring path = stageFolder() + L"\\skin\\" + GetParam() + L"\\skin.txt";
        m_skin = ParseSkin(qvtest::readFile(path), m_faults);
        for (const SkinFault& fault : m_faults)
            ADD_FAILURE() << "line " << fault.line << ": " << fault.reason;
    }

    uint32_t color(int index) const {
        if (const auto pen = m_skin.pens.find(index); pen != m_skin.pens.end())
            return pen->second.rgb;
        const auto found = m_skin.colors.find(index);
        EXPECT_NE(found, m_skin.colors.end()) << "no colour " << index;
        return found == m_skin.colors.end() ? 0 : found->second;
    }

    SkinData m_skin;
    std::vector<SkinFault> m_faults;
};

TEST(Contrast, BlackOnWhiteIs21) {
    EXPECT_NEAR(21.0, contrast(0x000000, 0xFFFFFF), 0.001);
}

TEST(Contrast, KnownGrey) {
    EXPECT_NEAR(4.54, contrast(0x767676, 0xFFFFFF), 0.01);
}

TEST_P(ShippedSkin, TextIsReadable) {
    for (const Pair& pair : kTextPairs)
        EXPECT_GE(contrast(color(pair.front), color(pair.ground)), kLeastTextContrast)
            << pair.front << " on " << pair.ground;
}

TEST_P(ShippedSkin, MarksAreSeen) {
    for (const Pair& pair : kMarkPairs)
        EXPECT_GE(contrast(color(pair.front), color(pair.ground)), kLeastMarkContrast)
            << pair.front << " on " << pair.ground;
}

TEST_P(ShippedSkin, MeterRangesDifferInLightness) {
    EXPECT_GE(contrast(color(741), color(740)), 1.25);
    EXPECT_GE(contrast(color(741), color(742)), 1.25);
}

TEST_P(ShippedSkin, HasEveryEntry) {
    for (const int index :
         {8,   9,   10,  12,  13,  15,  16,  18,  19,  23,  25,  27,  59,  60,  61,  62,  64,  65,
          66,  67,  122, 159, 160, 220, 221, 222, 233, 525, 536, 705, 730, 740, 741, 742, 743, 744,
          800, 801, 802, 803, 804, 805, 806, 807, 808, 809, 810, 811, 820, 821, 822, 823})
        EXPECT_TRUE(m_skin.colors.contains(index)) << index;
    for (const int index : {532, 533})
        EXPECT_TRUE(m_skin.pens.contains(index)) << index;
    for (const int index : {0, 1}) {
        ASSERT_TRUE(m_skin.brushes.contains(index)) << index;
        EXPECT_TRUE(m_skin.colors.contains(m_skin.brushes.at(index)));
    }
    for (const int index : {13, 14, 15, 16, 17})
        EXPECT_TRUE(m_skin.fonts.contains({index, "latin"}) || m_skin.fonts.contains({index, "cjk"}))
            << index;
}

TEST_P(ShippedSkin, ScriptsOfAFontHaveOneHeight) {
    for (const auto& [key, font] : m_skin.fonts) {
        for (const auto& [otherKey, other] : m_skin.fonts) {
            if (key.first == otherKey.first) {
                EXPECT_EQ(font.heightPx, other.heightPx) << "font " << key.first;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, ShippedSkin, testing::Values(L"dark", L"light"));

} // namespace
