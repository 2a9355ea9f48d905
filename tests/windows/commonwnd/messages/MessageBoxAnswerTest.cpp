// How the box is answered, and what is remembered of it.
#include "MessageBoxFixture.h"

namespace messagebox_test {

TEST_F(QuestionBox, YesButton) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) { user.click(box, IDC_MSGBOX_YES); }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, NoButton) {
    EXPECT_EQ(4u, Ask([](Driver& user, HWND box) { user.click(box, IDC_MSGBOX_NO); }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, EnterIsYesWhateverHasTheFocus) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND) { user.enter(); }));
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) {
                  const HWND no = qvtest::findControl(box, IDC_MSGBOX_NO);
                  user.onUi([&] { ::SetFocus(no); });
                  user.enter();
              }));
}

TEST_F(QuestionBox, EscapeIsCancel) {
    EXPECT_EQ(8u, Ask([](Driver& user, HWND) { user.escape(); }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, ClosingIsNo) {
    EXPECT_EQ(4u, Ask([](Driver&, HWND box) { ::PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); }));
    EXPECT_EQ(4u, Ask([](Driver&, HWND box) { ::PostMessageW(box, WM_CLOSE, 0, 0); }));
}

TEST_F(QuestionBox, DestroyedFromOutsideIsNo) {
    EXPECT_EQ(4u, Ask([](Driver& user, HWND box) { user.onUi([&] { ::DestroyWindow(box); }); }));
}

TEST_F(QuestionBox, TickedYesIsRemembered) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  EXPECT_TRUE(user.checked(qvtest::findControl(box, IDC_MSGBOX_NOASK)));
                  user.click(box, IDC_MSGBOX_YES);
              }));
    ExpectSilent(2);
    ExpectSilent(2);
    EXPECT_EQ(0u, QV_MessageRest());
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, TickedNoIsRemembered) {
    EXPECT_EQ(4u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  user.click(box, IDC_MSGBOX_NO);
              }));
    ExpectSilent(4);
}

TEST_F(QuestionBox, TickedEnterIsRemembered) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  user.enter();
              }));
    ExpectSilent(2);
}

TEST_F(QuestionBox, TickTakenBackIsNotRemembered) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  user.click(box, IDC_MSGBOX_NOASK);
                  user.click(box, IDC_MSGBOX_YES);
              }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, TickedEscapeAndTickedCloseAreNotRemembered) {
    EXPECT_EQ(8u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  user.escape();
              }));
    EXPECT_TRUE(Asks());
    EXPECT_EQ(4u, Ask([](Driver& user, HWND box) {
                  user.click(box, IDC_MSGBOX_NOASK);
                  ::PostMessageW(box, WM_CLOSE, 0, 0);
              }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, RestWithoutRememberedAnswerIsZeroToo) {
    EXPECT_EQ(0u, QV_MessageRest());
}

// ---- a box that the host shows itself

UINT ShowOwn(CQVXMessageBox& box, const std::function<void(Driver&, HWND)>& act, INT_PTR expectedEnd = IDOK) {
    box.m_strCaption = kTitle;
    box.m_strText = L"Host's question";
    EXPECT_EQ(expectedEnd, qvtest::runBeside([&] { return box.DoModal(); }, {.title = kTitle}, act));
    return box.m_nResult;
}

void Remember(UINT id) {
    CQVXMessageBox box;
    ShowOwn(box, [&](Driver& user, HWND window) {
        user.click(window, IDC_MSGBOX_NOASK);
        user.click(window, static_cast<int>(id));
    });
}

TEST_F(QuestionBox, OwnBoxShowsWhateverIsRemembered) {
    Remember(IDC_MSGBOX_YES);
    ExpectSilent(2);
    CQVXMessageBox box;
    EXPECT_EQ(4u, ShowOwn(box, [](Driver& user, HWND window) { user.click(window, IDC_MSGBOX_NO); }));
    ExpectSilent(2); // not ticked: the former answer stays
    Remember(IDC_MSGBOX_NO);
    ExpectSilent(4);
}

TEST_F(QuestionBox, EscapeInAnOwnBoxForgets) {
    Remember(IDC_MSGBOX_YES);
    CQVXMessageBox box;
    EXPECT_EQ(8u, ShowOwn(box, [](Driver& user, HWND) { user.escape(); }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, HiddenCancelButtonForgetsToo) {
    Remember(IDC_MSGBOX_YES);
    CQVXMessageBox box;
    EXPECT_EQ(8u, ShowOwn(box, [](Driver&, HWND window) {
                  ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_MSGBOX_CANCEL, BN_CLICKED), 0);
              }));
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, OwnBoxStartsWithItsInitialValues) {
    CQVXMessageBox box;
    EXPECT_TRUE(box.m_strCaption.IsEmpty());
    EXPECT_TRUE(box.m_strText.IsEmpty());
    EXPECT_EQ(4u, box.m_nResult);
    EXPECT_EQ(134217727u, box.m_nType);
}

TEST_F(QuestionBox, OwnBoxCanBeShownAgain) {
    CQVXMessageBox box;
    EXPECT_EQ(2u, ShowOwn(box, [](Driver& user, HWND) { user.enter(); }));
    EXPECT_EQ(4u, box.m_nType);
    EXPECT_EQ(4u, ShowOwn(
                      box, [](Driver&, HWND window) { ::PostMessageW(window, WM_CLOSE, 0, 0); }, IDCANCEL));
}

TEST_F(QuestionBox, HandlerOfTheTickBoxDoesNothing) {
    CQVXMessageBox box;
    box.OnBnClickedNoask();
    EXPECT_EQ(4u, box.m_nResult);
    EXPECT_TRUE(Asks());
}

} // namespace messagebox_test
