#include "ValuesFixture.h"

#include <climits>
#include <cmath>
#include <limits>

using namespace values_test;
using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr long kStatics = 2; // of the template

class PointDialog : public Values {
  protected:
    static HWND Timecode(Driver& user, HWND dialog) { return Control(user, dialog, IDC_VALUE_EDIT); }
    static HWND Frames(Driver& user, HWND dialog) { return Control(user, dialog, IDC_POINT_FRAMES); }
};

} // namespace

TEST_F(PointDialog, ShowsThePositionTwice) {
    CQVGetPointDlg dialog;
    dialog.SetFrameRate(TimecodeFrameRate(25.0));
    dialog.m_nFrame = 50;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"Set Position", textOf(wnd));
                  EXPECT_EQ(L"00:00:02:00", textOf(Timecode(user, wnd)));
                  EXPECT_EQ(L"50", textOf(Frames(user, wnd)));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(50, dialog.m_nFrame);
}

TEST_F(PointDialog, FramesMoveTheTimecodeAtOnce) {
    CQVGetPointDlg dialog; // 25 frames a second when nothing was said
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(Frames(user, wnd), L"75");
                  user.waitText(Timecode(user, wnd), L"00:00:03:00");
                  EXPECT_EQ(L"75", textOf(Frames(user, wnd)));
                  user.enter();
              }));
    EXPECT_EQ(75, dialog.m_nFrame);
}

TEST_F(PointDialog, TimecodeMovesTheFramesAtOnce) {
    CQVGetPointDlg dialog;
    dialog.SetFrameRate(TimecodeFrameRate(29.97, 1));
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(Timecode(user, wnd), L"10000"); // a label that drop-frame skips
                  user.waitText(Frames(user, wnd), L"1800");
                  user.enter();
              }));
    EXPECT_EQ(1800, dialog.m_nFrame);
}

TEST_F(PointDialog, TheWheelMovesBothFields) {
    CQVGetPointDlg dialog;
    dialog.m_nFrame = 100;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND frames = Frames(user, wnd);
                  user.click(frames);
                  user.waitFocus(frames);
                  user.wheel(frames, {5, 5}, 3);
                  user.waitText(frames, L"103");
                  user.waitText(Timecode(user, wnd), L"00:00:04:03");
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(103, dialog.m_nFrame);
}

TEST_F(PointDialog, EnterConfirmsInEitherField) {
    for (const int field : {IDC_VALUE_EDIT, IDC_POINT_FRAMES}) {
        CQVGetPointDlg dialog;
        dialog.m_nFrame = 10;
        EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                      user.replaceText(Control(user, wnd, field), L"+5");
                      user.enter();
                  }));
        EXPECT_EQ(15, dialog.m_nFrame);
    }
}

TEST_F(PointDialog, CancelLeavesTheFrame) {
    CQVGetPointDlg dialog;
    dialog.m_nFrame = 10;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(Frames(user, wnd), L"99");
                  user.waitText(Timecode(user, wnd), L"00:00:03:24");
                  user.escape();
              }));
    EXPECT_EQ(10, dialog.m_nFrame);
}

TEST_F(PointDialog, AnswersOfTheNotification) {
    CQVGetPointDlg dialog;
    dialog.m_nFrame = 4;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  constexpr UINT kNotify = WM_USER + 1324;
                  EXPECT_EQ(1, user.send(wnd, kNotify, 1, 0)); // no sender
                  user.onUi([&] {
                      EXPECT_EQ(0, dialog.OnTimeCodeChange(1, reinterpret_cast<LPARAM>(&dialog)));
                      EXPECT_EQ(0, dialog.OnTimeCodeChange(99, reinterpret_cast<LPARAM>(&dialog)));
                      EXPECT_EQ(0, dialog.OnTimeCodeChange(4, reinterpret_cast<LPARAM>(&dialog))); // confirms
                  });
              }));
    EXPECT_EQ(4, dialog.m_nFrame);
}

TEST_F(PointDialog, ExtremesComeBackUnchanged) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    for (const double rate : {0.0, -1.0, std::nan(""), kInfinite, 1e300, 25.0}) {
        for (const long long frame : {LLONG_MIN, -1LL, LLONG_MAX}) {
            CQVGetPointDlg dialog;
            dialog.SetFrameRate(TimecodeFrameRate(rate));
            dialog.m_nFrame = frame;
            EXPECT_EQ(IDOK, RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
            EXPECT_EQ(frame, dialog.m_nFrame) << rate;
        }
    }
}

TEST_F(PointDialog, PastedNonsenseIsRefused) {
    CQVGetPointDlg dialog;
    dialog.m_nFrame = 321;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  for (const HWND edit : {Timecode(user, wnd), Frames(user, wnd)}) {
                      Paste(user, edit, L"no frame 片段");
                      Paste(user, edit, std::wstring(1 << 20, L'x'));
                      Paste(user, edit, L"1:2:3:4:5:6:7");
                  }
                  Paste(user, Timecode(user, wnd), std::wstring(1 << 20, L'7'));
                  EXPECT_EQ(L"321", textOf(Frames(user, wnd)));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(321, dialog.m_nFrame);
}

TEST_F(PointDialog, AMegabyteOfDigitsIsTheLargestFrame) {
    CQVGetPointDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  Paste(user, Frames(user, wnd), std::wstring(1 << 20, L'7'));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(LLONG_MAX, dialog.m_nFrame);
}

TEST_F(PointDialog, ManyRunsLeaveNothingBehind) {
    qvtest::expectNoLeak(kLifeRuns,
                         [] {
                             CQVGetPointDlg dialog;
                             EXPECT_EQ(IDOK,
                                       RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
                         },
                         {.heapBlocks = kStatics});
}
