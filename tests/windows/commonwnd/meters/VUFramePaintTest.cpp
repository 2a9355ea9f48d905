#include "VUFrameFixture.h"

#include <cmath>

using namespace vuframe_test;

namespace {

constexpr int kPanelTop = 36;
constexpr int kTitleBottom = 30;

class VUFramePaint : public VUFrame {
  protected:
    void SetUp() override {
        VUFrame::SetUp();
        m_raised = QV_GetSysColor(QVCLR_PANEL_RAISED);
        m_ground = QV_GetSysColor(QVCLR_PANEL);
        ASSERT_NE(m_raised, m_ground);
    }

    // Where panels begin and end on the line of their upper edges (below their round corners).
    std::vector<std::pair<int, int>> Panels(const Picture& shot) const {
        std::vector<std::pair<int, int>> panels;
        for (int x = 0; x < shot.width(); ++x) {
            if (shot.at(x, kPanelTop + 2) == m_raised && shot.at(x - 1, kPanelTop + 2) != m_raised)
                panels.emplace_back(x, x);
            if (!panels.empty() && shot.at(x, kPanelTop + 2) == m_raised)
                panels.back().second = x + 1;
        }
        return panels;
    }

    static bool AnythingDrawn(const Picture& shot, const RECT& area) { return shot.colours(area) > 1; }

    COLORREF m_raised = 0;
    COLORREF m_ground = 0;
};

} // namespace

TEST_F(VUFramePaint, OnePanelForEachGroup) {
    TestFrame frame;
    Set(frame, 4, 10, 8);
    frame.Paint();
    const auto panels = Panels(Picture::ofClient(frame));
    ASSERT_EQ(3u, panels.size());
    // Width 22 n + 35, gaps of 5, the first at 10; two pixels of each end are the round corners'.
    int left = 10;
    for (size_t i = 0; i < 3; ++i) {
        const int width = 22 * (i == 0 ? 4 : i == 1 ? 10 : 8) + 35;
        EXPECT_NEAR(left, panels[i].first, 3);
        EXPECT_NEAR(left + width, panels[i].second, 3);
        left += width + 5;
    }
    const Picture shot = Picture::ofClient(frame);
    EXPECT_EQ(m_ground, shot.at(2, shot.height() / 2));
    EXPECT_EQ(m_raised, shot.at(60, shot.height() - 12));
    EXPECT_EQ(m_ground, shot.at(60, shot.height() - 8)); // the panel is 46 lower than the client area
}

TEST_F(VUFramePaint, AnEmptyGroupShowsNothing) {
    TestFrame frame;
    Set(frame, 0, 3, 0);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    EXPECT_EQ(1u, Panels(shot).size());
    EXPECT_TRUE(AnythingDrawn(shot, {40, 8, 110, kTitleBottom}));
    Set(frame, 0, 0, 0);
    frame.Paint();
    const Picture empty = Picture::ofClient(frame);
    EXPECT_EQ(0u, Panels(empty).size());
    EXPECT_EQ(1, empty.colours({0, 0, empty.width(), empty.height()}));
}

// Pixels beyond the buttons' round corners are the panel's.
TEST_F(VUFramePaint, NothingWhiteStandsInTheDarkFace) {
    TestFrame frame;
    Set(frame, 2, 2, 2);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    EXPECT_TRUE(shot.save(qvtest::picturePath(L"meter-frame")));
    for (const CQVButton* button : Shown<CQVButton>(frame)) {
        const CRect place = Place(frame, *button);
        EXPECT_EQ(m_raised, shot.at(place.left, place.top));
        EXPECT_EQ(m_raised, shot.at(place.right - 1, place.bottom - 1));
    }
}

TEST_F(VUFramePaint, EachChannelAndTheScaleAreLabelled) {
    TestFrame frame;
    Set(frame, 0, 4, 8);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(AnythingDrawn(shot, {43 + 22 * i, 42, 58 + 22 * i, 62})) << i;
    const int foot = shot.height() - 20;
    const auto tickAt = [&](double percent) { // of the scale, in the column of the ticks
        const int y = 86 + static_cast<int>(std::lround((100.0 - percent) * (foot - 86) / 100.0));
        return shot.at(35, y) != m_raised;
    };
    for (const int db : {0, -3, -6, -12, -20, -30, -40, -60, -120})
        EXPECT_TRUE(tickAt(_qv_extractrl::QVX_DBToPos(db))) << db;
    EXPECT_FALSE(tickAt(60.0));
    EXPECT_TRUE(AnythingDrawn(shot, {10, foot - 8, 32, foot + 9})); // minus infinity
}

TEST_F(VUFramePaint, LabelsStayInsideTheirPanel) {
    TestFrame frame;
    Set(frame, 0, 8, 8);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    EXPECT_EQ(1, shot.colours({0, 84, 9, shot.height()}));
}

TEST_F(VUFramePaint, TitlesComeInTheLanguage) {
    TestFrame frame;
    Set(frame, 4, 0, 8);
    frame.Paint();
    const Picture english = Picture::ofClient(frame);
    ASSERT_TRUE(QV_SetLanguage(L"zh-CN"));
    frame.Invalidate(FALSE);
    frame.Paint();
    const Picture chinese = Picture::ofClient(frame);
    const RECT titles = {0, 0, english.width(), kTitleBottom};
    EXPECT_LT(0, english.part(titles).differences(chinese.part(titles)));
}

TEST_F(VUFramePaint, TheFaceFollowsTheSkin) {
    const CString dark = QV_GetSkinPath();
    TestFrame frame;
    const CString folder = dark.Left(dark.ReverseFind(L'\\') + 1);
    ASSERT_TRUE(QV_SetSkinPath(folder + L"light"));
    frame.Paint();
    const Picture light = Picture::ofClient(frame);
    EXPECT_EQ(QV_GetSysColor(QVCLR_PANEL), light.at(2, light.height() / 2));
    EXPECT_EQ(QV_GetSysColor(QVCLR_PANEL_RAISED), light.at(60, light.height() - 12));
    const auto buttons = Shown<CQVButton>(frame);
    const CRect place = Place(frame, *buttons[0]);
    EXPECT_EQ(QV_GetSysColor(QVCLR_PANEL_RAISED), light.at(place.left, place.top));
    ASSERT_TRUE(QV_SetSkinPath(dark));
}
