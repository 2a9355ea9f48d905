#include "ValuesFixture.h"

#include <climits>

using namespace values_test;

namespace {

constexpr long kStatics = 2; // of the template

class PictureDialog : public Values {
  protected:
    PictureDialog() {
        m_dialog.m_szRange = CSize(1280, 720);
        m_dialog.m_szPicture = CSize(320, 180);
        m_dialog.m_ptPos = CPoint(100, 50);
        m_dialog.m_pPosChangeData = this;
        m_dialog.m_pfnPosChange = [](void* data, CQVPicturePosDlg* dialog) {
            auto* test = static_cast<PictureDialog*>(data);
            EXPECT_EQ(&test->m_dialog, dialog);
            ++test->m_calls;
        };
    }

    static HWND X(Driver& user, HWND dialog) { return Control(user, dialog, IDC_PICTURE_X); }
    static HWND Y(Driver& user, HWND dialog) { return Control(user, dialog, IDC_PICTURE_Y); }
    static HWND Tracker(Driver& user, HWND dialog) { return Control(user, dialog, IDC_PICTURE_TRACKER); }

    CRect Tracked() const {
        const auto* tracker =
            dynamic_cast<_qv_extractrl::CQVRectTracker*>(m_dialog.GetDlgItem(IDC_PICTURE_TRACKER));
        return tracker ? tracker->GetTrackRect() : CRect();
    }

    // The middle of the picture in the tracker, client pixels: the range fills the control's width or height.
    CPoint Middle(HWND tracker) const {
        CRect area;
        ::GetClientRect(tracker, &area);
        const double scale = std::min(static_cast<double>(area.Width()) / m_dialog.m_szRange.cx,
                                      static_cast<double>(area.Height()) / m_dialog.m_szRange.cy);
        const CPoint corner(static_cast<int>((area.Width() - m_dialog.m_szRange.cx * scale) / 2),
                            static_cast<int>((area.Height() - m_dialog.m_szRange.cy * scale) / 2));
        const CRect now = Tracked();
        return CPoint(corner.x + static_cast<int>((now.left + now.Width() / 2) * scale),
                      corner.y + static_cast<int>((now.top + now.Height() / 2) * scale));
    }

    CQVPicturePosDlg m_dialog;
    int m_calls = 0;
};

} // namespace

TEST_F(PictureDialog, Defaults) {
    const CQVPicturePosDlg dialog;
    EXPECT_EQ(CPoint(0, 0), dialog.m_ptPos);
    EXPECT_EQ(CSize(0, 0), dialog.m_szRange);
    EXPECT_EQ(CSize(0, 0), dialog.m_szPicture);
    EXPECT_EQ(0, dialog.m_nTrackerMode);
    EXPECT_EQ(nullptr, dialog.m_pfnPosChange);
    EXPECT_EQ(nullptr, dialog.m_pPosChangeData);
    EXPECT_FALSE(dialog.m_bInited);
}

TEST_F(PictureDialog, OpensWhereThePictureIs) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"Picture Start Position", textOf(wnd));
                  EXPECT_EQ(L"100", textOf(X(user, wnd)));
                  EXPECT_EQ(L"50", textOf(Y(user, wnd)));
                  user.onUi([&] {
                      EXPECT_EQ(CRect(CPoint(100, 50), CSize(320, 180)), Tracked());
                      EXPECT_TRUE(m_dialog.m_bInited);
                  });
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(100, 50), m_dialog.m_ptPos);
    EXPECT_EQ(0, m_calls); // opening is no change
}

TEST_F(PictureDialog, DefaultButtonGoesToTheCornerAndTellsOnce) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  user.click(wnd, IDC_PICTURE_DEFAULT);
                  user.waitText(X(user, wnd), L"0");
                  user.waitText(Y(user, wnd), L"0");
                  EXPECT_EQ(1, m_calls);
                  user.onUi([&] { EXPECT_EQ(CPoint(0, 0), Tracked().TopLeft()); });
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(0, 0), m_dialog.m_ptPos);
    EXPECT_EQ(1, m_calls);
}

TEST_F(PictureDialog, DraggingWritesBothFieldsAndTellsOncePerStep) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  const HWND tracker = Tracker(user, wnd);
                  CPoint from;
                  user.onUi([&] { from = Middle(tracker); });
                  user.drag(tracker, from, {from.x - 150, from.y - 150});
                  user.waitText(X(user, wnd), L"0"); // not beyond the frame
                  user.waitText(Y(user, wnd), L"0");

                  const int before = m_calls;
                  EXPECT_LT(0, before);
                  user.click(tracker);
                  user.press(VK_RIGHT);
                  user.waitText(X(user, wnd), L"1");
                  EXPECT_EQ(before + 1, m_calls); // the fields that it wrote did not tell again
                  user.press(VK_DOWN, qvtest::Shift);
                  user.waitText(Y(user, wnd), L"10");
                  EXPECT_EQ(before + 2, m_calls);
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(1, 10), m_dialog.m_ptPos);
}

TEST_F(PictureDialog, TypingMovesThePicture) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(X(user, wnd), L"12px"); // letters are refused
                  user.waitText(X(user, wnd), L"12");
                  user.replaceText(Y(user, wnd), L"7");
                  user.waitText(Y(user, wnd), L"7");
                  EXPECT_LE(3, m_calls); // with each digit
                  user.onUi([&] { EXPECT_EQ(CRect(CPoint(12, 7), CSize(320, 180)), Tracked()); });
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(12, 7), m_dialog.m_ptPos);
}

TEST_F(PictureDialog, DigitsBeforeLettersAreRead) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  Paste(user, X(user, wnd), L"12px");
                  Paste(user, Y(user, wnd), L"px");
                  user.onUi([&] { EXPECT_EQ(12, Tracked().left); });
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(12, 0), m_dialog.m_ptPos);
}

TEST_F(PictureDialog, AFractionIsNotTypedIntoTheNumber) {
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(X(user, wnd), L"12.7");
                  user.waitText(X(user, wnd), L"12");
                  Paste(user, Y(user, wnd), L"3.9");
                  user.onUi([&] { EXPECT_EQ(CPoint(12, 3), Tracked().TopLeft()); });
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(12, 3), m_dialog.m_ptPos);
}

TEST_F(PictureDialog, FiguresBeyond32BitsAreBounded) {
    for (const auto& [text, bounded] :
         {std::pair{L"4294967295", INT_MAX}, {L"-4294967290", INT_MIN}, {L"2147483648", INT_MAX}}) {
        EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                      user.onUi([&] { ::SetWindowTextW(X(user, wnd), text); });
                      user.onUi([&] { EXPECT_EQ(bounded, m_dialog.m_ptPos.x); });
                      user.click(wnd, IDOK);
                  }));
        EXPECT_EQ(bounded, m_dialog.m_ptPos.x) << text;
    }
}

TEST_F(PictureDialog, LockedTrackerIsNotDragged) {
    m_dialog.m_nTrackerMode = _qv_extractrl::QVTRACKER_LOCKED;
    EXPECT_EQ(IDOK, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  const HWND tracker = Tracker(user, wnd);
                  CPoint from;
                  user.onUi([&] { from = Middle(tracker); });
                  user.drag(tracker, from, {from.x + 20, from.y});
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(CPoint(100, 50), m_dialog.m_ptPos);
    EXPECT_EQ(0, m_calls);
}

TEST_F(PictureDialog, ExtremesDoNoHarm) {
    const CSize sizes[] = {{0, 0}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MIN}, {-5, 3}, {1, INT_MAX}};
    const CPoint points[] = {{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {-1, -1}};
    for (const CSize& range : sizes) {
        for (const CPoint& point : points) {
            CQVPicturePosDlg dialog;
            dialog.m_szRange = range;
            dialog.m_szPicture = CSize(range.cy, range.cx);
            dialog.m_ptPos = point;
            EXPECT_EQ(IDOK, RunOnce(dialog, [&] {
                          dialog.UpdateWindow();
                          for (const WPARAM key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN})
                              dialog.SendDlgItemMessage(IDC_PICTURE_TRACKER, WM_KEYDOWN, key, 1);
                          dialog.SetDlgItemText(IDC_PICTURE_X, L"99999999999999999999");
                          dialog.SetDlgItemText(IDC_PICTURE_Y, L"-2147483648");
                          dialog.UpdateWindow();
                          ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
                      }));
        }
    }
}

TEST_F(PictureDialog, PastedMegabyteDoesNoHarm) {
    EXPECT_EQ(IDCANCEL, Use(m_dialog, [&](Driver& user, HWND wnd) {
                  Paste(user, X(user, wnd), std::wstring(1 << 20, L'9'));
                  Paste(user, Y(user, wnd), std::wstring(1 << 20, L'x'));
                  user.escape();
              }));
}

TEST_F(PictureDialog, ManyRunsLeaveNothingBehind) {
    qvtest::expectNoLeak(
        kLifeRuns,
        [this] {
            EXPECT_EQ(IDOK, RunOnce(m_dialog, [&] { ::SendMessageW(m_dialog, WM_COMMAND, IDOK, 0); }));
        },
        {.heapBlocks = kStatics});
}
