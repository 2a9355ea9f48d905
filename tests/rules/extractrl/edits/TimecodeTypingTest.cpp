// What keys do to a field that shows a frame, without a window.
#include "edits/QVTimecodeTyping.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace _qv_extractrl;

void SelectAll(QVTimecodeTyping& field) {
    field.SelectAll();
}

// Types characters one by one; how many of them were refused.
int TypeAll(QVTimecodeTyping& field, const std::wstring& text) {
    int refused = 0;
    for (const wchar_t c : text)
        refused += field.Type(c) ? 0 : 1;
    return refused;
}

QVTimecodeTyping CountOf(long long frame) {
    QVTimecodeTyping field;
    field.SetMode(QVTimecodeText::FrameCount);
    field.SetFrame(frame);
    return field;
}

QVTimecodeTyping LabelOf(long long frame) {
    QVTimecodeTyping field;
    field.SetFrame(frame);
    return field;
}

void CaretToEnd(QVTimecodeTyping& field) {
    const int end = static_cast<int>(field.Text().size());
    field.Select({end, end});
}

TEST(TimecodeTyping, TheOtherFieldsEchoKeepsWhatUndoGoesBackTo) {
    QVTimecodeTyping label = LabelOf(50);
    label.Select({9, 11});
    label.Step(1);
    label.SetFrame(51); // what a dialog with two fields does
    label.GoBack();
    EXPECT_EQ(label.Frame(), 50);

    label.TakeText(L"00:00:10:00");
    label.SetFrame(250);
    label.GoBack();
    EXPECT_EQ(label.Frame(), 50);

    SelectAll(label);
    label.EraseForwards();
    label.SetFrame(0);
    label.GoBack();
    EXPECT_EQ(label.Frame(), 50);

    SelectAll(label);
    TypeAll(label, L"+10");
    label.Finish();
    label.SetFrame(60);
    label.GoBack();
    EXPECT_EQ(label.Frame(), 50);

    QVTimecodeTyping count = CountOf(7);
    SelectAll(count);
    TypeAll(count, L"+10");
    count.Finish();
    count.SetFrame(17);
    count.GoBack();
    EXPECT_EQ(count.Frame(), 7);
}

TEST(TimecodeTyping, AProgramsOwnFrameIsNotGoneBackFrom) {
    QVTimecodeTyping field = CountOf(7);
    field.Step(1);
    field.SetFrame(100);
    field.GoBack();
    EXPECT_EQ(field.Frame(), 100);
}

TEST(TimecodeTyping, ANegativeCountIsEditedAsOne) {
    QVTimecodeTyping field = CountOf(-10);
    CaretToEnd(field);
    EXPECT_EQ(TypeAll(field, L"5"), 0);
    EXPECT_EQ(field.Text(), L"-105");
    EXPECT_EQ(field.Frame(), -105);
    field.EraseBackwards();
    field.EraseBackwards();
    EXPECT_EQ(field.Text(), L"-1");
    EXPECT_EQ(field.Frame(), -1);
    field.EraseBackwards();
    TypeAll(field, L"4"); // behind the sign that was there
    EXPECT_EQ(field.Frame(), -4);
    field.Finish();
    EXPECT_EQ(field.Text(), L"-4");
    EXPECT_TRUE(field.TakeText(field.Text())); // copied and pasted
    EXPECT_EQ(field.Frame(), -4);
    field.Select({0, 1});
    field.EraseForwards();
    EXPECT_EQ(field.Frame(), 4);
    field.Select({0, 0});
    TypeAll(field, L"-"); // put before a number that stands there, it is its sign
    EXPECT_EQ(field.Frame(), -4);
}

TEST(TimecodeTyping, ASignThatIsTypedFirstIsADistance) {
    for (const auto& [typed, frame] : {std::pair{L"+5", 15LL},
                                       {L"-5", 5LL},
                                       {L"-50", -40LL},
                                       {L"--5", -5LL},
                                       {L"=-5", -5LL},
                                       {L"=5", 5LL}}) {
        QVTimecodeTyping field = CountOf(10);
        SelectAll(field);
        EXPECT_EQ(TypeAll(field, typed), 0) << typed;
        EXPECT_EQ(field.Frame(), frame) << typed;
        field.Finish();
        EXPECT_EQ(field.Text(), std::to_wstring(frame)) << typed;
    }
    QVTimecodeTyping field = CountOf(10);
    field.Select({0, 0});
    EXPECT_EQ(TypeAll(field, L"+"), 1); // not first: the number is there
    EXPECT_EQ(field.Frame(), 10);
}

TEST(TimecodeTyping, AnEmptiedFieldStandsForTheFrameBefore) {
    QVTimecodeTyping field = CountOf(50);
    SelectAll(field);
    TypeAll(field, L"75");
    EXPECT_TRUE(field.TakeNews());
    field.EraseBackwards();
    field.EraseBackwards();
    EXPECT_EQ(field.Text(), L"");
    EXPECT_EQ(field.Frame(), 50);
    EXPECT_TRUE(field.TakeNews()); // the parent hears of it
    field.Finish();
    EXPECT_EQ(field.Text(), L"50");

    QVTimecodeTyping label = LabelOf(50);
    SelectAll(label);
    TypeAll(label, L"75");
    label.EraseBackwards();
    label.EraseBackwards();
    EXPECT_EQ(label.Frame(), 50);
    EXPECT_EQ(label.Text(), L"00:00:02:00");
}

TEST(TimecodeTyping, ADecimalPointTakesItsDigitsAlong) {
    QVTimecodeTyping field = CountOf(0);
    SelectAll(field);
    EXPECT_EQ(TypeAll(field, L"12.75"), 3);
    EXPECT_EQ(field.Frame(), 12);
    EXPECT_FALSE(field.TakeText(L"12.7"));
    EXPECT_EQ(field.Frame(), 12);
    field.EndFraction(); // the caret was moved
    EXPECT_EQ(TypeAll(field, L"7"), 0);
    EXPECT_EQ(field.Frame(), 127);
    EXPECT_TRUE(field.TakeText(L"1,234"));
    EXPECT_EQ(field.Frame(), 1234);
}

TEST(TimecodeTyping, WhatMeansNothingIsRefused) {
    QVTimecodeTyping label = LabelOf(50);
    SelectAll(label);
    EXPECT_EQ(TypeAll(label, L"a!"), 2);
    label.Select({3, 5});
    EXPECT_EQ(TypeAll(label, L"x"), 1);
    EXPECT_EQ(label.Frame(), 50);
    QVTimecodeTyping count = CountOf(LLONG_MIN);
    CaretToEnd(count);
    EXPECT_EQ(TypeAll(count, L"1234567890"), 6); // 24 characters
    EXPECT_EQ(count.Frame(), LLONG_MIN);
}

} // namespace
