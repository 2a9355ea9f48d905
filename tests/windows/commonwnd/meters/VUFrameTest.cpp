#include "VUFrameFixture.h"

using namespace vuframe_test;

TEST_F(VUFrame, FirstFaceHasEightTracksAndEightOutputs) {
    TestFrame frame;
    const auto meters = Shown<Meter>(frame);
    ASSERT_EQ(16u, meters.size());
    EXPECT_EQ(40, Place(frame, *meters[0]).left); // the tracks begin: an empty group takes no room
    EXPECT_EQ(40 + 22 * 8 + 40, Place(frame, *meters[8]).left);
    CRect client;
    frame.GetClientRect(&client);
    for (const Meter* meter : meters) {
        const CRect place = Place(frame, *meter);
        EXPECT_EQ(86, place.top);
        EXPECT_EQ(15, place.Width());
        EXPECT_EQ(client.bottom - 20, place.bottom);
        EXPECT_EQ(0, meter->GetPos());
    }
    EXPECT_TRUE(frame.GetStyle() & WS_CLIPCHILDREN);
}

TEST_F(VUFrame, ButtonsStandAboveTheirMetersAndTouchNothing) {
    TestFrame frame;
    Set(frame, 4, 8, 8);
    const auto meters = Shown<Meter>(frame);
    const auto buttons = Shown<CQVButton>(frame);
    ASSERT_EQ(meters.size(), buttons.size());
    for (size_t i = 0; i < buttons.size(); ++i) {
        const CRect button = Place(frame, *buttons[i]);
        const CRect meter = Place(frame, *meters[i]);
        EXPECT_EQ(CPoint(meter.left + 3, 66), button.TopLeft());
        EXPECT_LE(button.bottom, meter.top);
        EXPECT_LE(button.right, meter.left + 22); // the next channel's place
        CString text;
        buttons[i]->GetWindowText(text);
        EXPECT_EQ(1, text.GetLength());
        EXPECT_FALSE(buttons[i]->IsWindowEnabled());
        EXPECT_EQ(static_cast<DWORD>(BS_PUSHLIKE | BS_AUTOCHECKBOX), buttons[i]->GetStyle() & 0xFFFF);
    }
    buttons[0]->SetWindowText(L"WWW"); // they take the size of their text
    EXPECT_LT(Place(frame, *buttons[1]).Width(), Place(frame, *buttons[0]).Width());
    EXPECT_NE(nullptr, frame.GetDlgItem(1001));
    EXPECT_NE(nullptr, frame.GetDlgItem(1012));
}

TEST_F(VUFrame, LevelsGoToTheirSlots) {
    TestFrame frame;
    int in[] = {11, 12};
    int track[] = {21, 22, 23, 24, 25, 26, 27, 28};
    int out[] = {31, 32, 33, 34, 35, 36, 37, 38};
    frame.SetUVValue(2, in, 8, track, 8, out, 5, 6);
    EXPECT_EQ((std::vector<int>{11, 12, 21, 22, 23, 24, 25, 26, 27, 28, 31, 32, 33, 34, 35, 36, 37, 38}),
              Levels(frame));
    frame.ClearUVValue();
    EXPECT_EQ(std::vector<int>(18, 0), Levels(frame));
}

TEST_F(VUFrame, FewOutputsHideTheFirstTracks) {
    TestFrame frame;
    Set(frame, 0, 8, 2); // hides slots 10 to 15: outputs 7 and 8, tracks 1 to 4
    EXPECT_EQ((std::vector<int>{5, 6, 7, 8, 1, 2}), Levels(frame));
    Set(frame, 0, 8, 8);
    EXPECT_EQ(16u, Levels(frame).size());
}

TEST_F(VUFrame, TheSameCountsOnlyMoveTheMeters) {
    TestFrame frame;
    Set(frame, 1, 2, 8);
    const auto before = Shown<Meter>(frame);
    frame.Paint();
    CRect window;
    frame.GetWindowRect(&window);
    frame.SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - 30, SWP_NOMOVE | SWP_NOZORDER);
    frame.Paint();
    frame.paints = 0;
    CRect lower;
    frame.GetWindowRect(&lower);
    int in[] = {90};
    int track[] = {80, 70};
    int out[8] = {60};
    frame.SetUVValue(1, in, 2, track, 8, out, 0, 0);
    frame.Paint();
    EXPECT_EQ(0, frame.paints); // the meters alone
    EXPECT_EQ(before, Shown<Meter>(frame));
    CRect after;
    frame.GetWindowRect(&after);
    EXPECT_EQ(lower, after);
    EXPECT_EQ(90, Levels(frame)[0]);
}

TEST_F(VUFrame, UnchangedLevelsPaintNothing) {
    TestFrame frame;
    Set(frame, 4, 95, 8);
    frame.Paint();
    frame.paints = 0;
    const Picture before = Picture::ofClient(frame);
    for (int i = 0; i < 50; ++i)
        Set(frame, 4, 95, 8);
    EXPECT_FALSE(::GetUpdateRect(frame, nullptr, FALSE));
    for (const Meter* meter : Shown<Meter>(frame))
        EXPECT_FALSE(::GetUpdateRect(*meter, nullptr, FALSE));
    EXPECT_EQ(0, frame.paints);
    EXPECT_EQ(0, Picture::ofClient(frame).differences(before));
}

TEST_F(VUFrame, LargestFaceIsTakenAndMoreIsNot) {
    TestFrame frame;
    Set(frame, 4, 95, 8);
    EXPECT_EQ(107u, Levels(frame).size());
    CRect before;
    frame.GetClientRect(&before);
    Set(frame, 4, 96, 8);
    EXPECT_EQ(107u, Levels(frame).size());
    Set(frame, 4, 95, 9);
    EXPECT_EQ(107u, Levels(frame).size());
    Set(frame, 5, 95, 8);
    EXPECT_EQ(107u, Levels(frame).size());
    CRect after;
    frame.GetClientRect(&after);
    EXPECT_EQ(before, after);
}

// A face that is refused still shows the levels of the slots that its counts name.
TEST_F(VUFrame, RefusedFacesStillWriteTheirLevels) {
    TestFrame frame;
    Set(frame, 2, 8, 8);
    int in[] = {41, 42, 43, 44, 45};
    frame.SetUVValue(5, in, 0, nullptr, 0, nullptr, 0, 0);
    const auto levels = Levels(frame);
    ASSERT_EQ(18u, levels.size());
    EXPECT_EQ(41, levels[0]);
    EXPECT_EQ(42, levels[1]);
    EXPECT_EQ(45, levels[10]); // the slot behind the inputs is the first output's
}

TEST_F(VUFrame, AbsurdCallsAreBounded) {
    TestFrame frame;
    int levels[200];
    std::fill(std::begin(levels), std::end(levels), INT_MAX);
    frame.SetUVValue(INT_MAX, nullptr, INT_MAX, nullptr, INT_MAX, nullptr, INT_MIN, INT_MAX);
    frame.SetUVValue(-1, levels, -5, levels, INT_MIN, levels, 0, 0);
    EXPECT_EQ(16u, Levels(frame).size());
    frame.SetUVValue(0, nullptr, 200, levels, 0, nullptr, 0, 0);
    frame.SetUVValue(4, levels, 95, levels, 8, levels, 0, 0);
    EXPECT_EQ(std::vector<int>(107, 100), Levels(frame));
    std::fill(std::begin(levels), std::end(levels), INT_MIN);
    frame.SetUVValue(4, levels, 95, levels, 8, levels, 0, 0);
    EXPECT_EQ(std::vector<int>(107, 0), Levels(frame));
    CQVVUFrame none; // no window
    none.SetUVValue(4, levels, 95, levels, 8, levels, 0, 0);
    none.ClearUVValue();
}

TEST_F(VUFrame, ClosingHidesUnlessAutoClose) {
    TestFrame frame;
    frame.SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindow(frame));
    EXPECT_FALSE(frame.IsWindowVisible());
    frame.ShowWindow(SW_SHOWNA);
    EXPECT_TRUE(frame.IsWindowVisible());
    frame.SetAutoClose(TRUE);
    const HWND wnd = frame;
    frame.SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(wnd));
}

TEST_F(VUFrame, SizeIsBounded) {
    TestFrame frame;
    MINMAXINFO info = {};
    frame.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(298, info.ptMinTrackSize.y);
    EXPECT_EQ(798, info.ptMaxTrackSize.y);
    EXPECT_EQ(info.ptMinTrackSize.x, info.ptMaxTrackSize.x);
    EXPECT_EQ(40 + 8 * 22 + 40 + 8 * 22 + 14, info.ptMinTrackSize.x);
    for (const auto& [asked, got] : {std::pair{50, 298}, {5000, 798}, {400, 400}}) {
        frame.SetWindowPos(nullptr, 0, 0, 3000, asked, SWP_NOMOVE | SWP_NOZORDER);
        CRect window;
        frame.GetWindowRect(&window);
        EXPECT_EQ(got, window.Height());
        EXPECT_EQ(info.ptMinTrackSize.x, window.Width());
        CRect client;
        frame.GetClientRect(&client);
        for (const Meter* meter : Shown<Meter>(frame))
            EXPECT_EQ(client.bottom - 20, Place(frame, *meter).bottom);
    }
}

TEST_F(VUFrame, DemonstrationTimerMovesTheMeters) {
    TestFrame frame;
    frame.OnTimer(2);
    EXPECT_EQ(std::vector<int>(16, 0), Levels(frame));
    frame.OnTimer(1);
    EXPECT_NE(std::vector<int>(16, 0), Levels(frame));
    for (const int level : Levels(frame))
        EXPECT_LT(level, 100);
}

TEST_F(VUFrame, IsMadeByItsClass) {
    CObject* made = RUNTIME_CLASS(CQVVUFrame)->CreateObject();
    ASSERT_NE(nullptr, dynamic_cast<CQVVUFrame*>(made));
    delete made;
}

TEST_F(VUFrame, OneObjectMakesWindowAfterWindow) {
    TestFrame frame;
    Set(frame, 4, 20, 8);
    frame.DestroyWindow();
    ASSERT_TRUE(frame.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 300, 380, nullptr, nullptr));
    EXPECT_EQ(16u, Shown<Meter>(frame).size());
    Set(frame, 1, 30, 8);
    EXPECT_EQ(39u, Shown<Meter>(frame).size());
}

TEST_F(VUFrame, ManyFramesLeaveNothingBehind) {
    qvtest::expectNoLeak(200, [] {
        TestFrame frame;
        Set(frame, 2, 12, 8);
        frame.Paint();
    });
}
