#include "ProbeDialog.h"

#include <ModalScript.h>
#include <Picture.h>
#include <QVCommonCtrl.h>

#include <gtest/gtest.h>

#include <climits>

using namespace qvtest;
using namespace _qv_extractrl;
using namespace _qv_commonctrl;

namespace {

constexpr CRect kRange(0, 0, 720, 576);

class RectTracker : public testing::Test {
  protected:
    void drive(const std::function<void(ProbeDialog&)>& setUp,
               const std::function<void(Driver&, HWND dialog, HWND tracker)>& steps) {
        probe.onInit = [&](ProbeDialog& opened) {
            opened.tracker()->SetRectRange(kRange);
            opened.tracker()->SetTrackRect(CPoint(100, 80), CRect(0, 0, 320, 240));
            setUp(opened);
        };
        ModalScript script;
        script.step("use the tracker", [&](Driver& user) {
            const HWND wnd = user.waitWindow({.title = L"Probe"});
            steps(user, wnd, user.waitControl(wnd, IDC_TRACKER));
            if (::IsWindow(wnd))
                user.click(wnd, IDCANCEL);
        });
        script.run([&] { return probe.DoModal(); });
    }

    CRect trackRect(Driver& user) {
        CRect rect;
        user.onUi([&] { rect = probe.tracker()->GetTrackRect(); });
        return rect;
    }

    // The middle of the picture's rectangle on the control, by the shown proportions.
    POINT pictureCentre(HWND tracker, const CRect& rect) {
        RECT client;
        ::GetClientRect(tracker, &client);
        const double scale = std::min((client.right - 12) / 720.0, (client.bottom - 12) / 576.0);
        const double left = (client.right - 720 * scale) / 2;
        const double top = (client.bottom - 576 * scale) / 2;
        return {static_cast<LONG>(left + scale * (rect.left + rect.right) / 2),
                static_cast<LONG>(top + scale * (rect.top + rect.bottom) / 2)};
    }

    ProbeDialog probe;
};

void nothingMore(ProbeDialog&) {
}

void sendMouse(HWND tracker, UINT message, LPARAM where) {
    ::SendMessageW(tracker, message, MK_LBUTTON, where);
}

TEST_F(RectTracker, DragMovesAndTells) {
    drive(nothingMore, [&](Driver& user, HWND, HWND tracker) {
        const POINT from = pictureCentre(tracker, trackRect(user));
        user.drag(tracker, from, {from.x + 20, from.y + 10});
        const CRect moved = trackRect(user);
        EXPECT_GT(moved.left, 130);
        EXPECT_GT(moved.top, 95);
        EXPECT_EQ(moved.Width(), 320);
        EXPECT_EQ(moved.Height(), 240);
        ASSERT_FALSE(probe.moves.empty());
        EXPECT_EQ(probe.moves.back(), moved);
        EXPECT_EQ(probe.lastMoveId, static_cast<WPARAM>(IDC_TRACKER));
    });
}

TEST_F(RectTracker, DragStopsAtTheRange) {
    drive(nothingMore, [&](Driver& user, HWND, HWND tracker) {
        const POINT from = pictureCentre(tracker, trackRect(user));
        user.drag(tracker, from, {from.x + 900, from.y + 900});
        EXPECT_EQ(trackRect(user), CRect(400, 336, 720, 576));
        const POINT back = pictureCentre(tracker, trackRect(user));
        user.drag(tracker, back, {back.x - 900, back.y - 900});
        EXPECT_EQ(trackRect(user), CRect(0, 0, 320, 240));
    });
}

TEST_F(RectTracker, ArrowsNudgeByOneAndTen) {
    drive(nothingMore, [&](Driver& user, HWND, HWND tracker) {
        user.clickAt(tracker, {3, 3}); // takes the focus, hits nothing
        EXPECT_TRUE(probe.moves.empty());
        user.press(VK_RIGHT);
        user.press(VK_DOWN);
        EXPECT_EQ(trackRect(user).TopLeft(), CPoint(101, 81));
        user.press(VK_LEFT, Shift);
        user.press(VK_UP, Shift);
        EXPECT_EQ(trackRect(user).TopLeft(), CPoint(91, 71));
        EXPECT_EQ(probe.moves.size(), 4u);
        for (int i = 0; i < 12; ++i)
            user.press(VK_UP, Shift);
        EXPECT_EQ(trackRect(user).top, 0);
        EXPECT_EQ(probe.moves.size(), 4u + 8u); // no message where nothing moves
    });
}

TEST_F(RectTracker, ModesLockDirections) {
    drive([](ProbeDialog& opened) { opened.tracker()->m_nTrackerMode = QVTRACKER_MOVE_HORZ; },
          [&](Driver& user, HWND, HWND tracker) {
              user.clickAt(tracker, {3, 3});
              user.press(VK_DOWN);
              user.press(VK_RIGHT);
              EXPECT_EQ(trackRect(user).TopLeft(), CPoint(101, 80));
              user.onUi([&] { probe.tracker()->m_nTrackerMode = QVTRACKER_MOVE_VERT; });
              user.press(VK_DOWN);
              user.press(VK_RIGHT);
              EXPECT_EQ(trackRect(user).TopLeft(), CPoint(101, 81));
              user.onUi([&] { probe.tracker()->m_nTrackerMode = QVTRACKER_LOCKED; });
              user.press(VK_DOWN);
              const POINT from = pictureCentre(tracker, trackRect(user));
              user.drag(tracker, from, {from.x + 20, from.y + 10});
              EXPECT_EQ(trackRect(user).TopLeft(), CPoint(101, 81));
          });
}

TEST_F(RectTracker, WithoutTheOptionItMayLeaveTheRange) {
    drive([](ProbeDialog& opened) { opened.tracker()->m_nOption = QVTRACKER_FRAME; },
          [&](Driver& user, HWND, HWND tracker) {
              user.clickAt(tracker, {3, 3});
              for (int i = 0; i < 12; ++i)
                  user.press(VK_UP, Shift);
              EXPECT_EQ(trackRect(user).top, -40);
          });
}

TEST_F(RectTracker, ProgramsPlaceIsKeptAndTheUsersMoveBringsItBack) {
    drive(
        [](ProbeDialog& opened) {
            opened.tracker()->SetTrackRect(CPoint(5000, -5000), CRect(0, 0, 100, 100));
        },
        [&](Driver& user, HWND, HWND tracker) {
            EXPECT_EQ(trackRect(user), CRect(5000, -5000, 5100, -4900));
            EXPECT_TRUE(probe.moves.empty());
            user.clickAt(tracker, {3, 3});
            user.press(VK_LEFT);
            EXPECT_EQ(trackRect(user), CRect(620, 0, 720, 100));
        });
}

TEST_F(RectTracker, ExtremeValues) {
    drive(
        [](ProbeDialog& opened) {
            CQVRectTracker& tracker = *opened.tracker();
            for (const CRect& range : {CRect(0, 0, 0, 0), CRect(10, 10, 0, 0),
                                       CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), CRect(0, 0, INT_MAX, 1)}) {
                tracker.SetRectRange(range);
                for (const CPoint& pos : {CPoint(INT_MIN, INT_MIN), CPoint(INT_MAX, INT_MAX), CPoint(0, 0)}) {
                    tracker.SetTrackRect(pos, CRect(0, 0, INT_MAX, INT_MAX));
                    tracker.SetTrackRect(pos, CRect(5, 5, 1, 1));
                    tracker.RedrawWindow();
                    tracker.SendMessage(WM_KEYDOWN, VK_RIGHT);
                }
            }
            tracker.SetPicture(nullptr);
            tracker.SetTextStyle(-1);
            tracker.m_nTrackerMode = 99;
            tracker.m_nOption = -1;
        },
        [](Driver&, HWND, HWND) {});
}

TEST_F(RectTracker, EscapeWhileDraggingPutsItBack) {
    drive(nothingMore, [&](Driver& user, HWND wnd, HWND tracker) {
        const POINT from = pictureCentre(tracker, trackRect(user));
        POINT screen = from;
        ::ClientToScreen(tracker, &screen);
        moveMouse(screen);
        user.settle();
        mouseDown();
        user.settle();
        moveMouse({screen.x + 30, screen.y + 20});
        user.settle();
        EXPECT_NE(trackRect(user).TopLeft(), CPoint(100, 80));
        user.escape();
        EXPECT_EQ(trackRect(user).TopLeft(), CPoint(100, 80));
        mouseUp();
        user.settle();
        EXPECT_TRUE(::IsWindowVisible(wnd)); // Escape did not reach the dialog
        EXPECT_EQ(trackRect(user).TopLeft(), CPoint(100, 80));
    });
}

TEST_F(RectTracker, EscapePutsItBackOutOfTheRange) {
    drive(
        [](ProbeDialog& opened) { opened.tracker()->SetTrackRect(CPoint(-100, -50), CRect(0, 0, 320, 240)); },
        [&](Driver& user, HWND, HWND tracker) {
            const POINT from = pictureCentre(tracker, trackRect(user));
            POINT screen = from;
            ::ClientToScreen(tracker, &screen);
            moveMouse(screen);
            user.settle();
            mouseDown();
            user.settle();
            EXPECT_TRUE(probe.moves.empty());
            moveMouse({screen.x + 30, screen.y + 20});
            user.settle();
            EXPECT_FALSE(probe.moves.empty());
            user.escape();
            EXPECT_EQ(trackRect(user).TopLeft(), CPoint(-100, -50));
            EXPECT_EQ(probe.moves.back().TopLeft(), CPoint(-100, -50));
            mouseUp();
            user.settle();
            EXPECT_EQ(trackRect(user).TopLeft(), CPoint(-100, -50));
        });
}

TEST_F(RectTracker, NoDistanceMovesNothing) {
    drive(
        [](ProbeDialog& opened) {
            opened.tracker()->SetTrackRect(CPoint(-100, 80), CRect(0, 0, 320, 240));
            opened.tracker()->m_nTrackerMode = QVTRACKER_MOVE_VERT;
        },
        [&](Driver& user, HWND, HWND tracker) {
            user.clickAt(tracker, pictureCentre(tracker, trackRect(user)));
            user.press(VK_RIGHT); // not a direction of this mode
            user.onUi([&] {
                const POINT at = pictureCentre(tracker, probe.tracker()->GetTrackRect());
                const LPARAM where = MAKELPARAM(at.x, at.y);
                sendMouse(tracker, WM_LBUTTONDOWN, where);
                sendMouse(tracker, WM_MOUSEMOVE, where);
                sendMouse(tracker, WM_LBUTTONUP, where);
            });
            EXPECT_EQ(trackRect(user).TopLeft(), CPoint(-100, 80));
            EXPECT_TRUE(probe.moves.empty());
        });
}

TEST_F(RectTracker, ShowsThePicture) {
    CBitmap bitmap;
    CClientDC screen(nullptr);
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 32, 24));
    {
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap* const before = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, 32, 24, RGB(200, 30, 90));
        memory.SelectObject(before);
    }
    drive(
        [&](ProbeDialog& opened) {
            opened.tracker()->SetPicture(static_cast<HBITMAP>(bitmap.GetSafeHandle()));
        },
        [&](Driver& user, HWND, HWND tracker) {
            user.settle();
            const Picture shot = Picture::ofClient(tracker);
            shot.save(picturePath(L"tracker-picture"));
            const POINT centre = pictureCentre(tracker, trackRect(user));
            EXPECT_EQ(shot.at(centre.x, centre.y), RGB(200, 30, 90));
            EXPECT_EQ(shot.at(1, 1), QV_GetSysColor(QVCLR_WINDOW));
            EXPECT_GT(shot.count(QV_GetSysColor(QVCLR_ACCENT)), 100);
            user.onUi([&] { probe.tracker()->SetPicture(nullptr); });
        });
}

} // namespace
