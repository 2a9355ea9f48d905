#include "fileview/ListAnswers.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

constexpr int kRoom = 16;
constexpr LPARAM kParam = 77;
constexpr int kImage = 5;

// A question of a list, with room for a text.
struct Question {
    explicit Question(UINT mask, int index = 3, int column = 0) {
        item.mask = mask;
        item.iItem = index;
        item.iSubItem = column;
        item.lParam = kParam;
        item.pszText = text;
        item.cchTextMax = kRoom;
        item.iImage = -1;
    }
    LVITEMW item = {};
    wchar_t text[kRoom] = L"";
};

void Answer(CListAnswers& answers, UINT mask, const wchar_t* text, int image) {
    Question question(mask);
    wcscpy(question.text, text);
    question.item.iImage = image;
    answers.Keep(mask, question.item);
}

} // namespace

TEST(ListAnswers, KnowsNothingAtTheStart) {
    const CListAnswers answers;
    Question question(LVIF_TEXT);
    EXPECT_FALSE(answers.Fill(question.item));
}

TEST(ListAnswers, RepeatsNameAndPicture) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT | LVIF_IMAGE, L"clip.avi", kImage);
    Question both(LVIF_TEXT | LVIF_IMAGE);
    ASSERT_TRUE(answers.Fill(both.item));
    EXPECT_STREQ(both.text, L"clip.avi");
    EXPECT_EQ(both.item.iImage, kImage);
}

TEST(ListAnswers, GathersWhatIsAskedInParts) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT, L"clip.avi", kImage);
    Question both(LVIF_TEXT | LVIF_IMAGE);
    EXPECT_FALSE(answers.Fill(both.item)) << "the picture was not asked for yet";
    EXPECT_EQ(both.item.iImage, -1);
    EXPECT_STREQ(both.text, L"");
    Answer(answers, LVIF_IMAGE, L"", kImage);
    EXPECT_TRUE(answers.Fill(both.item));
    EXPECT_STREQ(both.text, L"clip.avi");
}

TEST(ListAnswers, CutsATextToTheRoom) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT, L"clip.avi", 0);
    Question question(LVIF_TEXT);
    question.item.cchTextMax = 5;
    ASSERT_TRUE(answers.Fill(question.item));
    EXPECT_STREQ(question.text, L"clip");
    question.item.cchTextMax = 0;
    EXPECT_FALSE(answers.Fill(question.item));
    question.item.pszText = nullptr;
    question.item.cchTextMax = kRoom;
    EXPECT_FALSE(answers.Fill(question.item));
}

TEST(ListAnswers, IsAboutOnePlaceAndItem) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT, L"clip.avi", 0);
    Question otherPlace(LVIF_TEXT, 4);
    EXPECT_FALSE(answers.Fill(otherPlace.item));
    Question otherColumn(LVIF_TEXT, 3, 1);
    EXPECT_FALSE(answers.Fill(otherColumn.item));
    Question otherItem(LVIF_TEXT);
    otherItem.item.lParam = kParam + 1;
    EXPECT_FALSE(answers.Fill(otherItem.item)) << "another item came to this place";
}

TEST(ListAnswers, AnotherItemDropsWhatWasKnownOfTheFormer) {
    CListAnswers answers;
    Answer(answers, LVIF_IMAGE, L"", kImage);
    Question next(LVIF_TEXT);
    next.item.lParam = kParam + 1;
    wcscpy(next.text, L"b.avi");
    answers.Keep(LVIF_TEXT, next.item);
    Question both(LVIF_TEXT | LVIF_IMAGE);
    both.item.lParam = kParam + 1;
    EXPECT_FALSE(answers.Fill(both.item)) << "the picture was the former item's";
}

TEST(ListAnswers, LeavesOtherQuestionsToTheOwner) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT, L"clip.avi", 0);
    Question state(LVIF_TEXT | LVIF_STATE);
    EXPECT_FALSE(answers.Fill(state.item));
    Question nothing(0);
    EXPECT_FALSE(answers.Fill(nothing.item));
}

TEST(ListAnswers, KeepsNoAnswerThatIsNone) {
    CListAnswers answers;
    Answer(answers, LVIF_IMAGE, L"", -1);
    Question image(LVIF_IMAGE);
    EXPECT_FALSE(answers.Fill(image.item)) << "the picture comes later";
    Question callback(LVIF_TEXT);
    callback.item.pszText = LPSTR_TEXTCALLBACKW;
    answers.Keep(LVIF_TEXT, callback.item);
    Question text(LVIF_TEXT);
    EXPECT_FALSE(answers.Fill(text.item));
    Question kept(LVIF_TEXT);
    wcscpy(kept.text, L"x");
    kept.item.mask |= LVIF_DI_SETITEM;
    answers.Keep(LVIF_TEXT, kept.item);
    EXPECT_FALSE(answers.Fill(text.item)) << "the list keeps that one itself";
}

TEST(ListAnswers, ForgetsAllAtOnce) {
    CListAnswers answers;
    Answer(answers, LVIF_TEXT, L"clip.avi", 0);
    answers.Forget();
    Question question(LVIF_TEXT);
    EXPECT_FALSE(answers.Fill(question.item));
}
