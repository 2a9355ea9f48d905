#include "YBColorSpace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

const YBColorSpaceApi& Api() {
    return *VMQ_GetAPIStuPtr();
}

TEST(ColorSpace, TableNamesItsSizeAndVersion) {
    ASSERT_NE(VMQ_GetAPIStuPtr(), nullptr);
    EXPECT_EQ(Api().nStructBytes, sizeof(YBColorSpaceApi));
    EXPECT_EQ(Api().nVersion, 0x00010000u);
    EXPECT_EQ(VMQ_GetAPIStuPtr(), VMQ_GetAPIStuPtr());
}

struct BarRow {
    const char* name;
    int matrix;
    YBPixelRGB rgb;
    YBPixelYCbCr ycc;
};

// 100 % colour bars; the codes are those printed in test-signal tables of both standards.
const BarRow kBars[] = {
    {"709 white", YB_MATRIX_BT709, {255, 255, 255}, {235, 128, 128}},
    {"709 black", YB_MATRIX_BT709, {0, 0, 0}, {16, 128, 128}},
    {"709 red", YB_MATRIX_BT709, {255, 0, 0}, {63, 102, 240}},
    {"709 green", YB_MATRIX_BT709, {0, 255, 0}, {173, 42, 26}},
    {"709 blue", YB_MATRIX_BT709, {0, 0, 255}, {32, 240, 118}},
    {"601 white", YB_MATRIX_BT601, {255, 255, 255}, {235, 128, 128}},
    {"601 red", YB_MATRIX_BT601, {255, 0, 0}, {81, 90, 240}},
    {"601 green", YB_MATRIX_BT601, {0, 255, 0}, {145, 54, 34}},
    {"601 blue", YB_MATRIX_BT601, {0, 0, 255}, {41, 240, 110}},
    {"2020 red", YB_MATRIX_BT2020, {255, 0, 0}, {74, 97, 240}},
    {"unknown is 709", 77, {255, 0, 0}, {63, 102, 240}},
    {"negative is 709", -1, {255, 0, 0}, {63, 102, 240}},
};

TEST(ColorSpace, EncodesBars) {
    for (const BarRow& row : kBars) {
        SCOPED_TRACE(row.name);
        const YBPixelYCbCr got = Api().pfnRGBToYCbCr(row.matrix, row.rgb);
        EXPECT_EQ(got.y, row.ycc.y);
        EXPECT_EQ(got.cb, row.ycc.cb);
        EXPECT_EQ(got.cr, row.ycc.cr);
    }
}

TEST(ColorSpace, DecodesBackWithinTheCodesRounding) {
    for (const int matrix : {YB_MATRIX_BT601, YB_MATRIX_BT709, YB_MATRIX_BT2020}) {
        for (int i = 0; i < 16 * 16 * 16; ++i) {
            const YBPixelRGB in = {static_cast<unsigned char>(i % 16 * 17),
                                   static_cast<unsigned char>(i / 16 % 16 * 17),
                                   static_cast<unsigned char>(i / 256 * 17)};
            const YBPixelRGB out = Api().pfnYCbCrToRGB(matrix, Api().pfnRGBToYCbCr(matrix, in));
            ASSERT_LE(std::abs(in.r - out.r), 2);
            ASSERT_LE(std::abs(in.g - out.g), 2);
            ASSERT_LE(std::abs(in.b - out.b), 2);
        }
    }
}

TEST(ColorSpace, LimitsWhatHasNoColour) {
    const YBPixelRGB superWhite = Api().pfnYCbCrToRGB(YB_MATRIX_BT709, {255, 128, 128});
    EXPECT_EQ(superWhite.r, 255);
    EXPECT_EQ(superWhite.b, 255);
    const YBPixelRGB subBlack = Api().pfnYCbCrToRGB(YB_MATRIX_BT709, {0, 128, 128});
    EXPECT_EQ(subBlack.g, 0);
}

TEST(ColorSpace, RowsEqualSinglePixelsAndIgnoreBadInput) {
    const YBPixelRGB source[3] = {{1, 2, 3}, {200, 100, 50}, {255, 0, 255}};
    YBPixelYCbCr target[3] = {};
    Api().pfnRGBRowToYCbCr(YB_MATRIX_BT601, source, target, 3);
    for (int i = 0; i < 3; ++i) {
        const YBPixelYCbCr one = Api().pfnRGBToYCbCr(YB_MATRIX_BT601, source[i]);
        EXPECT_EQ(target[i].y, one.y);
        EXPECT_EQ(target[i].cb, one.cb);
        EXPECT_EQ(target[i].cr, one.cr);
    }
    YBPixelRGB back[3] = {{9, 9, 9}, {9, 9, 9}, {9, 9, 9}};
    Api().pfnYCbCrRowToRGB(YB_MATRIX_BT601, nullptr, back, 3);
    Api().pfnYCbCrRowToRGB(YB_MATRIX_BT601, target, nullptr, 3);
    Api().pfnYCbCrRowToRGB(YB_MATRIX_BT601, target, back, 0);
    Api().pfnYCbCrRowToRGB(YB_MATRIX_BT601, target, back, -5);
    EXPECT_EQ(back[0].r, 9);
}

TEST(ColorSpace, LuminancePercent) {
    EXPECT_EQ(Api().pfnLumaCodeToPercent(16.0), 0.0);
    EXPECT_EQ(Api().pfnLumaCodeToPercent(235.0), 100.0);
    EXPECT_EQ(Api().pfnLumaPercentToCode(0.0), 16.0);
    EXPECT_EQ(Api().pfnLumaPercentToCode(100.0), 235.0);
    EXPECT_DOUBLE_EQ(Api().pfnLumaPercentToCode(50.0), 125.5);
    EXPECT_TRUE(std::isnan(Api().pfnLumaCodeToPercent(std::numeric_limits<double>::quiet_NaN())));
}

} // namespace
