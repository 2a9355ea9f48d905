#include "ProgressFixture.h"

#include "Picture.h"
#include "ShownText.h"

#include <thread>

using namespace progress_test;

TEST_F(Progress, PlainSetters) {
    CZ5ProgressDlg::SetCurPos(50, 60);
    EXPECT_EQ(50.0f, CZ5ProgressDlg::m_nCurPos);
    EXPECT_EQ(60, CZ5ProgressDlg::m_nNextPos);
    CZ5ProgressDlg::SetCurPos(50, 50); // nothing announced
    EXPECT_EQ(-1, CZ5ProgressDlg::m_nNextPos);
    wchar_t text[] = L"copying";
    CZ5ProgressDlg::SetTextShow(text);
    CZ5ProgressDlg::SetTextShow(nullptr);
    EXPECT_STREQ(L"copying", CZ5ProgressDlg::strText);
    CZ5ProgressDlg::SetTextShow(CZ5ProgressDlg::strText.GetBuffer() + 4); // a piece of itself
    EXPECT_STREQ(L"ing", CZ5ProgressDlg::strText);
    const CString kept = CZ5ProgressDlg::strText;
    CZ5ProgressDlg::SetTextShow(text);
    EXPECT_STREQ(L"copying", CZ5ProgressDlg::strText);
    EXPECT_STREQ(L"ing", kept);
    CZ5ProgressDlg::EndProgressWnd(7);
    EXPECT_EQ(7, CZ5ProgressDlg::m_bEndWnd);
    EXPECT_EQ(0, CZ5ProgressDlg::Exist());
    const CZ5ProgressDlg window; // construction puts the bar at 0 and nothing else back
    EXPECT_EQ(0.0f, CZ5ProgressDlg::m_nCurPos);
    EXPECT_EQ(7, CZ5ProgressDlg::m_bEndWnd);
    EXPECT_EQ(-1, CZ5ProgressDlg::m_nNextPos);
    EXPECT_EQ(100, window.m_nRange);
    EXPECT_EQ(0.0f, window.m_fStep);
    EXPECT_EQ(0, window.m_nSlowLimit);
}

void SetTextOnAWorker(const wchar_t* text) {
    std::wstring own(text);
    std::thread([&] { CZ5ProgressDlg::SetTextShow(own.data()); }).join();
}

// Whoever sets a text finds it in the member, and the window never brings an older one back.
TEST_F(Progress, TheLastTextWins) {
    Run(L"Texts", 100, 0.0f, [&](Driver& user, HWND window) {
        SetTextOnAWorker(L"from a worker");
        EXPECT_STREQ(L"from a worker", CZ5ProgressDlg::strText);
        user.onUi([] {
            SetTextOnAWorker(L"older");
            wchar_t text[] = L"newer";
            CZ5ProgressDlg::SetTextShow(text);
            EXPECT_STREQ(L"newer", CZ5ProgressDlg::strText);
        });
        WaitTicks(user, window, 3);
        EXPECT_STREQ(L"newer", CZ5ProgressDlg::strText);
        EXPECT_EQ(0u, user.text(window, IDC_PROGRESS_TEXT).find(L"newer"));
        user.onUi([] { // no tick comes in between: the window ends with the worker's text
            SetTextOnAWorker(L"last of the window");
            CZ5ProgressDlg::EndProgressWnd(1);
        });
    });
    EXPECT_STREQ(L"last of the window", CZ5ProgressDlg::strText);
}

TEST_F(Progress, DefaultsOfImpossibleArguments) {
    Run(nullptr, 0, 0.0f, [&](Driver& user, HWND window) {
        EXPECT_EQ(L"", textOf(window));
        EXPECT_EQ((std::pair{0, 100}), Range(user, window));
        CZ5ProgressDlg::SetCurPos(37, 37);
        WaitBar(user, window, 37);
        WaitTicks(user, window, 4);
        EXPECT_EQ(37, Bar(user, window)); // stays where it was put
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, RangesThatAreTakenAndThatAreNot) {
    for (const auto& [asked, taken] :
         {std::pair{1, 1}, {1000, 1000}, {1001, 100}, {-1, 100}, {INT_MIN, 100}}) {
        Run(L"Range", asked, -5.0f, [&, expected = taken](Driver& user, HWND window) {
            EXPECT_EQ((std::pair{0, expected}), Range(user, window));
            CZ5ProgressDlg::EndProgressWnd(1);
        });
        EXPECT_EQ(static_cast<float>(taken), CZ5ProgressDlg::m_nCurPos); // the bar ran to its end
    }
}

TEST_F(Progress, TheBarMovesByItself) {
    Run(L"Steps", 10, 1.0f, [&](Driver& user, HWND window) {
        WaitBar(user, window, 10);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

// Past the range each tick takes a third of the step before; the threshold stays 0.
TEST_F(Progress, StepsShrinkPastTheRange) {
    wchar_t title[] = L"Slow";
    SteppedWindow window(title, 4, 1.0f);
    const float expected[] = {
        1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 5.0f + 1.0f / 3.0f, 5.0f + 1.0f / 3.0f + 1.0f / 9.0f};
    for (const float pos : expected) {
        window.Tick();
        EXPECT_NEAR(pos, CZ5ProgressDlg::m_nCurPos, 1e-4f);
    }
    CZ5ProgressDlg::SetCurPos(2, 9); // an announced position ahead keeps the step
    const float step = window.m_fStep;
    window.Tick();
    EXPECT_EQ(step, window.m_fStep);
    EXPECT_EQ(0, window.m_nSlowLimit);
}

TEST_F(Progress, DotsRunFromNoneToTwentyAndAgain) {
    wchar_t title[] = L"Dots";
    wchar_t text[] = L"working";
    CZ5ProgressDlg::SetTextShow(text);
    SteppedWindow window(title, 100, 0.0f);
    window.Tick();
    const size_t first = window.Message().size();
    for (size_t i = 1; i <= 42; ++i) {
        window.Tick();
        const size_t dots = (first - 7 + i) % 21;
        EXPECT_EQ(L"working" + std::wstring(dots, L'.'), window.Message());
    }
}

TEST_F(Progress, EnterEscapeAndTheCloseButtonDoNothing) {
    Run(L"Open", 100, 0.0f, [&](Driver& user, HWND window) {
        user.press(VK_ESCAPE);
        user.send(window, WM_CLOSE);
        user.send(window, WM_SYSCOMMAND, SC_CLOSE);
        EXPECT_EQ(0, CZ5ProgressDlg::Exist());
        user.onUi([&] { ::SetFocus(window); });
        user.send(window, WM_COMMAND, IDOK);
        user.send(window, WM_COMMAND, IDCANCEL);
        EXPECT_TRUE(::IsWindowVisible(window));
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

// The button has the focus and is the only tab stop: for the system it would be the default one.
TEST_F(Progress, EnterOnTheFocusedButtonCancelsNothing) {
    Run(L"Keys", 100, 0.0f, [&](Driver& user, HWND window) {
        user.waitFocus(user.waitControl(window, IDC_PROGRESS_CANCEL));
        user.enter();
        user.press(VK_TAB); // leaves it the default button
        user.waitFocus(user.waitControl(window, IDC_PROGRESS_CANCEL));
        user.enter();
        user.press(VK_RETURN, qvtest::Shift);
        user.settle();
        EXPECT_EQ(0, CZ5ProgressDlg::Exist());
        user.press(VK_SPACE); // pressing the button by its own key is a cancel
        user.waitFor("the answer", [] { return CZ5ProgressDlg::Exist() == 1; });
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, CancelOnlyAnswersExist) {
    Run(L"Cancel", 100, 0.0f, [&](Driver& user, HWND window) {
        EXPECT_EQ(L"Cancel", user.text(window, IDC_PROGRESS_CANCEL));
        user.click(window, IDC_PROGRESS_CANCEL);
        user.waitFor("the answer", [] { return CZ5ProgressDlg::Exist() == 1; });
        WaitTicks(user, window, 2);
        EXPECT_TRUE(::IsWindowVisible(window));
        CZ5ProgressDlg::EndProgressWnd(1);
    });
    EXPECT_EQ(1, CZ5ProgressDlg::Exist());
    CZ5ProgressDlg::EndProgressWnd(0);
    Run(L"Again", 100, 0.0f, [&](Driver&, HWND) {
        EXPECT_EQ(0, CZ5ProgressDlg::Exist()); // cleared by the next window
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, WithoutTakingTheEndBackTheNextWindowClosesAtOnce) {
    CZ5ProgressDlg::EndProgressWnd(1);
    wchar_t title[] = L"Ended";
    ModalScript script; // closes a window that stays, and fails
    script.run([&] { CZ5ProgressDlg::ProgressWndDoModle(title, 50, 0.0f); });
    EXPECT_EQ(50.0f, CZ5ProgressDlg::m_nCurPos);
}

TEST_F(Progress, Layout) {
    Run(L"Layout", 100, 0.0f, [&](Driver& user, HWND window) {
        CRect client;
        ::GetClientRect(window, &client);
        const auto place = [&](int id) {
            CRect rect;
            ::GetWindowRect(user.waitControl(window, id), &rect);
            ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
            return rect;
        };
        const CRect message = place(IDC_PROGRESS_TEXT);
        EXPECT_EQ(20, message.left);
        EXPECT_EQ(client.right - 20, message.right);
        const CRect bar = place(IDC_PROGRESS_BAR);
        EXPECT_EQ(CRect(20, message.bottom + 4, client.right - 20, message.bottom + 24), bar);
        EXPECT_EQ(CRect(client.right - 90, bar.bottom + 10, client.right - 20, bar.bottom + 32),
                  place(IDC_PROGRESS_CANCEL));
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, ExtremesAreBounded) {
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    for (const float step : {std::nanf(""), -kInfinite, kInfinite, 1e30f}) {
        wchar_t title[] = L"Extremes";
        SteppedWindow window(title, 10, step);
        for (int i = 0; i < 5; ++i)
            window.Tick();
        EXPECT_GE(window.Bar(), 0);
        EXPECT_LE(window.Bar(), 10);
        for (const int pos : {INT_MIN, INT_MAX, -1}) {
            CZ5ProgressDlg::SetCurPos(pos, INT_MAX);
            window.Tick();
            EXPECT_GE(window.Bar(), 0);
            EXPECT_LE(window.Bar(), 10);
        }
    }
    CZ5ProgressDlg::SetCurPos(INT_MIN, INT_MIN);
    EXPECT_EQ(-1, CZ5ProgressDlg::m_nNextPos);
    Run(L"From far below", 100, 0.0f, [&](Driver&, HWND) {
        CZ5ProgressDlg::SetCurPos(INT_MIN, 0);
        CZ5ProgressDlg::EndProgressWnd(1); // arrives all the same
    });
    EXPECT_EQ(100.0f, CZ5ProgressDlg::m_nCurPos);
}

// The line is one line: a text that is too long for it ends in an ellipsis, and the control has all of it.
TEST_F(Progress, LongMessagesEndInAnEllipsis) {
    std::wstring text(5000, L'W');
    CZ5ProgressDlg::SetTextShow(text.data());
    Run(L"Long", 100, 0.0f, [&](Driver& user, HWND window) {
        const HWND message = user.waitControl(window, IDC_PROGRESS_TEXT);
        WaitTicks(user, window, 2);
        EXPECT_EQ(0u, textOf(message).find(text + L'.'));
        user.settle();
        const qvtest::Picture picture = qvtest::Picture::ofClient(message);
        picture.save(qvtest::picturePath(L"progress-long-message"));
        // An ellipsis leaves the upper half of the line's end free; a letter that is cut there does not.
        constexpr int kEndPx = 8;
        const RECT upper = {picture.width() - kEndPx, 0, picture.width(), picture.height() / 2};
        EXPECT_EQ(1, picture.colours(upper));
        const RECT whole = {0, 0, picture.width(), picture.height() / 2};
        EXPECT_LT(1, picture.colours(whole));
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, AmpersandsAreShown) {
    wchar_t text[] = L"R&B_final & more.mov";
    CZ5ProgressDlg::SetTextShow(text);
    Run(L"R&B & more", 100, 0.0f, [&](Driver& user, HWND window) {
        EXPECT_EQ(L"R&B & more", textOf(window));
        user.settle();
        const HWND message = user.waitControl(window, IDC_PROGRESS_TEXT);
        int needed = 0;
        int shown = 0;
        user.onUi([&] { // between two ticks
            needed = qvtest::widthOfText(message);
            ::UpdateWindow(message);
            shown = qvtest::widthOfInk(message);
        });
        EXPECT_NEAR(needed, shown, 4);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

TEST_F(Progress, HugeTexts) {
    std::wstring huge(1 << 20, L'W');
    CZ5ProgressDlg::SetTextShow(huge.data());
    EXPECT_EQ(1 << 20, CZ5ProgressDlg::strText.GetLength());
    Run(huge.c_str(), 100, 0.0f, [&](Driver& user, HWND window) {
        WaitTicks(user, window, 3);
        EXPECT_LE(1 << 20, ::GetWindowTextLengthW(user.waitControl(window, IDC_PROGRESS_TEXT)));
        wchar_t empty[] = L"";
        CZ5ProgressDlg::SetTextShow(empty);
        WaitTicks(user, window, 2);
        CZ5ProgressDlg::EndProgressWnd(1);
    });
}

namespace {

// Ends the window as soon as it stands on the screen with everything painted.
void CALLBACK EndWhenPainted(HWND, UINT, UINT_PTR, DWORD) {
    const HWND window = ::GetActiveWindow();
    if (!::IsWindowVisible(window))
        return;
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CZ5ProgressDlg::EndProgressWnd(1);
}

} // namespace

TEST_F(Progress, ManyRunsLeaveNothingBehind) {
    qvtest::expectNoLeak(200,
                         [] {
                             wchar_t title[] = L"Short";
                             CZ5ProgressDlg::EndProgressWnd(0);
                             const UINT_PTR timer =
                                 ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, EndWhenPainted);
                             CZ5ProgressDlg::ProgressWndDoModle(title, 3, 1.0f);
                             ::KillTimer(nullptr, timer);
                         },
                         {.heapBlocks = 1}); // of the static
}
