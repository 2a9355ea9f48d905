#include <QVCommonCtrl.h>
#include <QVExtraCtrl.h>

#include <LeakGuard.h>
#include <ModalScript.h>
#include <Picture.h>

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <vector>

using namespace qvtest;
using namespace _qv_extractrl;
using namespace _qv_commonctrl;

namespace {

constexpr int kWidth = 15;
constexpr int kHeight = 206;

// A visible popup with meters side by side.
class MeterStand : public CWnd {
  public:
    explicit MeterStand(int count = 1) {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"Meters", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                 10, 10, 20 + 22 * count, kHeight + 20, nullptr, nullptr);
        for (int i = 0; i < count; ++i) {
            meters.push_back(std::make_unique<CQVVUTableCtrl>());
            meters.back()->Create(WS_CHILD | WS_VISIBLE,
                                  CRect(CPoint(10 + 22 * i, 10), CSize(kWidth, kHeight)), this,
                                  static_cast<UINT>(100 + i));
        }
        RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    ~MeterStand() override {
        meters.clear();
        DestroyWindow();
    }

    CQVVUTableCtrl& meter(int index = 0) { return *meters[static_cast<size_t>(index)]; }

    std::vector<std::unique_ptr<CQVVUTableCtrl>> meters;
};

bool isNear(COLORREF a, COLORREF b) {
    const auto apart = [](int x, int y) { return std::abs(x - y) > 4; };
    return !apart(GetRValue(a), GetRValue(b)) && !apart(GetGValue(a), GetGValue(b)) &&
           !apart(GetBValue(a), GetBValue(b));
}

// How many rows, counted from the foot, show a lit scale colour in the middle of the meter.
int litRows(const Picture& shot) {
    int rows = 0;
    for (int y = shot.height() - 1; y >= 0; --y) {
        const COLORREF c = shot.at(kWidth / 2, y);
        const int brightest = std::max({GetRValue(c), GetGValue(c), GetBValue(c)});
        if (brightest > 60 && !isNear(c, QV_GetSysColor(QVCLR_METER_PEAK)))
            ++rows;
        else if (rows > 0 && y > 0) {
            const COLORREF above = shot.at(kWidth / 2, y - 1);
            if (std::max({GetRValue(above), GetGValue(above), GetBValue(above)}) <= 60)
                break;
            ++rows;
        }
    }
    return rows;
}

// What the screen shows must be what a full repaint would show.
void expectScreenIsRepaint(CWnd& meter) {
    const Picture shown = Picture::ofClient(meter);
    meter.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(shown.differences(Picture::ofClient(meter)), 0);
}

TEST(VUTable, PositionsAreBounded) {
    MeterStand stand;
    stand.meter().SetPos(-5);
    EXPECT_EQ(stand.meter().GetPos(), 0);
    stand.meter().SetPos(INT_MAX);
    EXPECT_EQ(stand.meter().GetPos(), 100);
    stand.meter().SetPos(INT_MIN);
    EXPECT_EQ(stand.meter().GetPos(), 0);
    EXPECT_EQ(stand.meter().GetPeak(), 100);
    EXPECT_TRUE(stand.meter().IsClipped());
    stand.meter().ResetPeak();
    EXPECT_EQ(stand.meter().GetPeak(), 0);
    EXPECT_FALSE(stand.meter().IsClipped());
}

TEST(VUTable, ColoursFollowTheScale) {
    MeterStand stand;
    stand.meter().SetPos(100);
    const Picture full = Picture::ofClient(stand.meter());
    ASSERT_EQ(full.width(), kWidth);
    ASSERT_EQ(full.height(), kHeight);
    const RECT middle = {kWidth / 2, 0, kWidth / 2 + 1, kHeight};
    EXPECT_GT(full.count(QV_GetSysColor(QVCLR_METER_SAFE), middle), kHeight / 2);
    EXPECT_GT(full.count(QV_GetSysColor(QVCLR_METER_HIGH), middle), 10);
    EXPECT_GT(full.count(QV_GetSysColor(QVCLR_METER_OVER), middle), 5);
    EXPECT_EQ(full.at(kWidth / 2, 1), QV_GetSysColor(QVCLR_METER_OVER)); // clip mark
    EXPECT_TRUE(full.save(picturePath(L"meter-full")));
    stand.meter().SetPos(0);
    stand.meter().ResetPeak();
    const Picture empty = Picture::ofClient(stand.meter());
    EXPECT_EQ(empty.count(QV_GetSysColor(QVCLR_METER_SAFE)), 0);
    EXPECT_GT(empty.differences(full), kWidth * kHeight * 9 / 10);
}

TEST(VUTable, TheScreenIsWhatARepaintWouldShow) {
    MeterStand stand;
    unsigned seed = 7;
    for (int i = 0; i < 300; ++i) {
        seed = seed * 1103515245u + 12345u;
        stand.meter().SetPos(static_cast<int>(seed >> 16) % 101);
        if (i % 10 == 0)
            expectScreenIsRepaint(stand.meter());
    }
    expectScreenIsRepaint(stand.meter());
}

TEST(VUTable, HigherPositionsLightMoreRows) {
    MeterStand stand;
    int before = -1;
    for (int pos = 0; pos <= 100; pos += 10) {
        stand.meter().SetPos(pos);
        const int rows = litRows(Picture::ofClient(stand.meter()));
        EXPECT_GT(rows, before) << pos;
        EXPECT_NEAR(rows, kHeight * pos / 100, 2) << pos;
        before = rows;
    }
}

// Counts what reaches the screen: marks a pixel that an unneeded paint would overwrite.
TEST(VUTable, UnchangedPositionPaintsNothing) {
    MeterStand stand;
    stand.meter().SetPos(40);
    CClientDC dc(&stand.meter());
    const COLORREF mark = RGB(1, 2, 3);
    for (int y = 0; y < kHeight; ++y)
        dc.SetPixelV(3, y, mark);
    stand.meter().SetPos(40);
    EXPECT_FALSE(stand.meter().GetUpdateRect(nullptr));
    EXPECT_EQ(Picture::ofClient(stand.meter()).count(mark), kHeight);
    stand.meter().SetPos(45);
    const int kept = Picture::ofClient(stand.meter()).count(mark);
    EXPECT_LT(kept, kHeight);
    EXPECT_GE(kept, kHeight - 12); // only the rows between the two levels
}

TEST(VUTable, PeakFallsAndClipGoesOutByThemselves) {
    MeterStand stand;
    ModalScript script(Milliseconds(20000));
    stand.meter().SetPos(100);
    stand.meter().SetPos(20);
    script.step("wait", [&](Driver& user) {
        user.waitFor("peak to fall", [&] { return stand.meter().GetPeak() < 90; });
        user.waitFor("clip mark to go out", [&] { return !stand.meter().IsClipped(); });
        user.waitFor("rest", [&] { return stand.meter().GetPeak() == 20; });
        user.onUi([&] { expectScreenIsRepaint(stand.meter()); });
        user.onUi([] { ::PostQuitMessage(0); });
    });
    script.run([] {
        MSG message;
        while (::GetMessageW(&message, nullptr, 0, 0) > 0)
            ::DispatchMessageW(&message);
        return 0;
    });
    EXPECT_FALSE(stand.meter().IsClipped());
}

TEST(VUTable, ResizeAndZeroSize) {
    MeterStand stand;
    stand.meter().SetPos(50);
    for (const CSize size : {CSize(0, 0), CSize(1, 1), CSize(3, 500), CSize(40, 2), CSize(kWidth, kHeight)}) {
        stand.meter().SetWindowPos(nullptr, 10, 10, size.cx, size.cy, SWP_NOZORDER);
        stand.meter().UpdateWindow();
        stand.meter().SetPos(100);
        stand.meter().SetPos(50);
        stand.meter().ResetPeak();
    }
    expectScreenIsRepaint(stand.meter());
    EXPECT_NEAR(litRows(Picture::ofClient(stand.meter())), kHeight / 2, 2);
}

void setAll(MeterStand& stand, const std::vector<int>& positions) {
    std::vector<CQVVUTableCtrl*> meters;
    for (const auto& meter : stand.meters)
        meters.push_back(meter.get());
    CQVVUTableCtrl::SetPos(meters.data(), positions.data(), static_cast<int>(positions.size()));
}

TEST(VUTable, ManyAtOnceShowWhatARepaintWouldShow) {
    MeterStand stand(6);
    unsigned seed = 3;
    for (int i = 0; i < 100; ++i) {
        std::vector<int> positions;
        for (size_t meter = 0; meter < stand.meters.size(); ++meter) {
            seed = seed * 1103515245u + 12345u;
            positions.push_back(static_cast<int>(seed >> 16) % 140 - 20);
        }
        setAll(stand, positions);
        EXPECT_EQ(std::clamp(positions[5], 0, 100), stand.meter(5).GetPos());
        expectScreenIsRepaint(stand.meter(i % 6));
    }
    for (int i = 0; i < 6; ++i)
        expectScreenIsRepaint(stand.meter(i));
}

TEST(VUTable, ManyAtOnceUnchangedPaintNothing) {
    MeterStand stand(4);
    setAll(stand, {10, 20, 30, 40});
    const COLORREF mark = RGB(1, 2, 3);
    for (int i = 0; i < 4; ++i) {
        CClientDC dc(&stand.meter(i));
        for (int y = 0; y < kHeight; ++y)
            dc.SetPixelV(3, y, mark);
    }
    setAll(stand, {10, 20, 35, 40});
    for (const int unchanged : {0, 1, 3})
        EXPECT_EQ(Picture::ofClient(stand.meter(unchanged)).count(mark), kHeight) << unchanged;
    const int kept = Picture::ofClient(stand.meter(2)).count(mark);
    EXPECT_LT(kept, kHeight);
    EXPECT_GE(kept, kHeight - 12);
}

TEST(VUTable, ManyAtOnceMayBeAnything) {
    MeterStand one(2), other(2);
    other.SetWindowPos(nullptr, 200, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    other.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CQVVUTableCtrl windowless;
    CQVVUTableCtrl* const meters[] = {&one.meter(0), nullptr,       &other.meter(0),
                                      &windowless,   &one.meter(1), &other.meter(1)};
    const int positions[] = {90, 1, 60, 77, INT_MAX, INT_MIN};
    CQVVUTableCtrl::SetPos(meters, positions, 6);
    CQVVUTableCtrl::SetPos(nullptr, positions, 6);
    CQVVUTableCtrl::SetPos(meters, nullptr, 6);
    CQVVUTableCtrl::SetPos(meters, positions, -1);
    EXPECT_EQ(77, windowless.GetPos());
    EXPECT_NEAR(litRows(Picture::ofClient(one.meter(0))), kHeight * 90 / 100, 2);
    EXPECT_NEAR(litRows(Picture::ofClient(other.meter(0))), kHeight * 60 / 100, 2);
    for (CWnd* const meter : {&one.meter(0), &one.meter(1), &other.meter(0), &other.meter(1)})
        expectScreenIsRepaint(*meter);
}

// A hidden meter leaves its place to the parent, and one that gives way to what covers it leaves that alone.
TEST(VUTable, ManyAtOncePaintOnlyWhatIsTheirs) {
    MeterStand stand(3);
    stand.meter(1).ShowWindow(SW_HIDE);
    stand.meter(2).ModifyStyle(0, WS_CLIPSIBLINGS);
    CWnd cover;
    cover.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_WHITERECT, 10 + 2 * 22, 10, kWidth, kHeight,
                   stand, nullptr);
    cover.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    stand.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const Picture before = Picture::ofClient(stand);
    setAll(stand, {0, 100, 100});
    const Picture after = Picture::ofClient(stand);
    EXPECT_EQ(0, before.differences(after));
    EXPECT_EQ(kWidth * kHeight, Picture::ofClient(cover).count(RGB(255, 255, 255)));
    stand.meter(1).ShowWindow(SW_SHOW);
    stand.meter(1).UpdateWindow();
    EXPECT_NEAR(litRows(Picture::ofClient(stand.meter(1))), kHeight, 2);
    cover.DestroyWindow();
}

TEST(VUTable, WithoutAWindowThePositionIsKept) {
    CQVVUTableCtrl meter;
    meter.SetPos(33);
    EXPECT_EQ(meter.GetPos(), 33);
    meter.ResetPeak();
    EXPECT_EQ(meter.GetPeak(), 33);
}

TEST(VUTable, AFaceOfMetersLeavesNothingBehind) {
    expectNoLeak(200, [] {
        MeterStand stand(20);
        for (int i = 0; i < 20; ++i)
            stand.meter(i).SetPos(i * 5);
    });
}

} // namespace
