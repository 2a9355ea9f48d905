// How far the message box grows for its question.
#include "messages/MessageBoxRules.h"
#include "support/WindowText.h"

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

// The template's places in a box of 400 x 170 client pixels.
const MessageBoxParts kTemplate = {CRect(20, 14, 380, 86), CRect(25, 90, 125, 107),
                                   CRect(160, 130, 240, 154)};
const CSize kClient(400, 170);

void ExpectParts(const MessageBoxParts& expected, const MessageBoxParts& parts) {
    EXPECT_EQ(expected.question, parts.question);
    EXPECT_EQ(expected.noAsk, parts.noAsk);
    EXPECT_EQ(expected.yes, parts.yes);
}

TEST(Parts, OfAShortQuestionStay) {
    ExpectParts(kTemplate, FitQuestion(kTemplate, kClient, CSize(357, 72), 100, 96));
    ExpectParts(kTemplate, FitQuestion(kTemplate, kClient, CSize(0, 0), 0, 96));
}

TEST(Parts, QuestionThatJustFitsGetsRoomForItsOverhang) {
    const MessageBoxParts parts = FitQuestion(kTemplate, kClient, CSize(358, 72), 100, 96);
    EXPECT_EQ(CRect(20, 14, 381, 86), parts.question);
}

TEST(Parts, QuestionIsWidenedToBothSides) {
    const MessageBoxParts parts = FitQuestion(kTemplate, kClient, CSize(384, 20), 100, 96);
    EXPECT_EQ(CRect(8, 14, 394, 86), parts.question) << "the last letter may hang over";
    EXPECT_EQ(CRect(6, 14, 394, 86), FitQuestion(kTemplate, kClient, CSize(5000, 20), 100, 96).question);
}

TEST(Parts, TickBoxMakesRoomForAHighQuestion) {
    const MessageBoxParts parts = FitQuestion(kTemplate, kClient, CSize(100, 100), 100, 96);
    EXPECT_EQ(CRect(25, 134, 125, 151), parts.noAsk);
    EXPECT_EQ(CRect(20, 14, 380, 126), parts.question);
    EXPECT_EQ(CRect(20, 6, 380, 126), FitQuestion(kTemplate, kClient, CSize(100, 120), 100, 96).question);
    EXPECT_EQ(CRect(20, 6, 380, 126), FitQuestion(kTemplate, kClient, CSize(100, 9000), 100, 96).question);
    EXPECT_EQ(CRect(20, 12, 380, 122), FitQuestion(kTemplate, kClient, CSize(100, 9000), 100, 192).question);
}

TEST(Parts, TickBoxIsWidenedForItsText) {
    EXPECT_EQ(225, FitQuestion(kTemplate, kClient, CSize(10, 10), 200, 96).noAsk.right);
    EXPECT_EQ(394, FitQuestion(kTemplate, kClient, CSize(10, 10), 900, 96).noAsk.right);
    EXPECT_EQ(152, FitQuestion(kTemplate, kClient, CSize(10, 100), 900, 96).noAsk.right)
        << "up to the button";
}

TEST(Question, WithoutWindowOrTextHasNoSize) {
    EXPECT_EQ(CSize(0, 0), MeasureTextIn(nullptr, L"text", 0));
    EXPECT_EQ(CSize(0, 0), MeasureTextIn(GetDesktopWindow(), L"", 0));
}

} // namespace
