// How far the message box grows for its question.
#include "MessageBoxRules.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

struct Row {
    const char* name;
    CSize question, window, workArea;
    UINT dpi;
    CSize size;
};

class Growth : public testing::TestWithParam<Row> {};

TEST_P(Growth, OfTheBox) {
    const Row& row = GetParam();
    const CSize size = MessageBoxSize(row.question, row.window, row.workArea, row.dpi);
    EXPECT_EQ(row.size.cx, size.cx);
    EXPECT_EQ(row.size.cy, size.cy);
}

const CSize kBox(400, 200);
const CSize kScreen(1920, 1040);

INSTANTIATE_TEST_SUITE_P(
    Table, Growth,
    testing::Values(Row{"empty", {0, 0}, kBox, kScreen, 96, {400, 200}},
                    Row{"fits", {384, 114}, kBox, kScreen, 96, {400, 200}},
                    Row{"onePixelWider", {385, 10}, kBox, kScreen, 96, {401, 200}},
                    Row{"onePixelHigher", {10, 115}, kBox, kScreen, 96, {400, 201}},
                    Row{"both", {1000, 500}, kBox, kScreen, 96, {1016, 586}},
                    Row{"marginsScale", {1000, 500}, kBox, kScreen, 192, {1032, 672}},
                    Row{"asLargeAsTheWorkArea", {1904, 954}, kBox, kScreen, 96, {1920, 1040}},
                    Row{"largerThanTheWorkArea", {9000000, 50000}, kBox, kScreen, 96, {1920, 1040}},
                    Row{"boxLargerThanTheWorkArea", {9000, 9000}, kBox, {300, 100}, 96, {400, 200}}),
    [](const auto& row) { return row.param.name; });

TEST(Question, WithoutWindowOrTextHasNoSize) {
    EXPECT_EQ(CSize(0, 0), MeasureQuestion(nullptr, L"text"));
    EXPECT_EQ(CSize(0, 0), MeasureQuestion(GetDesktopWindow(), L""));
}

} // namespace
