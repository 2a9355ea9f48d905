// Figures, hit tests, mouse states and pixels of the shared caption band; no window needed but the screen.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

// A band like that of a window over a system dialog.
constexpr QVCaptionFigures kLow = {21,          27, 6, 1, 17, 5, 2, QVCLR_TEXT_WINDOW, QVCLR_TEXT_WINDOW,
                                   QVCLR_WINDOW};
constexpr UINT k96 = 96;
constexpr UINT k144 = 144;

// A memory picture of a painted area.
class Canvas {
  public:
    Canvas(int width, int height) {
        CClientDC screen(nullptr);
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, width, height);
        former = dc.SelectObject(&bitmap);
    }
    ~Canvas() { dc.SelectObject(former); }
    CDC dc;

  private:
    CBitmap bitmap;
    CBitmap* former = nullptr;
};

} // namespace

TEST_F(Controls, BandGeometryFollowsItsFigures) {
    const CQVCaptionBand band(kLow);
    const CRect area(0, 0, 640, 480);
    EXPECT_TRUE(band.GetCaptionRect(area, k96) == CRect(0, 0, 640, 21));
    EXPECT_TRUE(band.GetCloseRect(area, k96) == CRect(613, 1, 634, 17));
    EXPECT_TRUE(band.GetCloseBounds(area, k96) == CRect(612, 0, 635, 18));
    EXPECT_EQ(5, band.GetTextRect(area, k96).left);
    EXPECT_LE(band.GetTextRect(area, k96).right, 612);
    EXPECT_EQ(2, CQVCaptionBand::GetFrameWidth(k96));
}

TEST_F(Controls, BandGeometryScalesWithDpi) {
    const CQVCaptionBand band(kLow);
    const CRect area(0, 0, 960, 720);
    EXPECT_TRUE(band.GetCaptionRect(area, k144) == CRect(0, 0, 960, 32));
    EXPECT_TRUE(band.GetCloseRect(area, k144) == CRect(960 - 41, 2, 960 - 9, 26));
    EXPECT_EQ(4, CQVCaptionBand::GetFrameWidth(k144));
    EXPECT_TRUE(band.GetCaptionRect(area, 0) == band.GetCaptionRect(area, k96)) << "0 stands for 96";
}

TEST_F(Controls, BandGeometryMovesWithTheArea) {
    const CQVCaptionBand band(kLow);
    EXPECT_TRUE(band.GetCloseRect(CRect(10, 20, 110, 120), k96) == CRect(83, 21, 104, 37));
}

TEST_F(Controls, BandHitTestKnowsItsParts) {
    const CQVCaptionBand band(kLow);
    const CRect area(0, 0, 640, 480);
    EXPECT_EQ(QVBandPart::Caption, band.HitTest(area, CPoint(100, 10), k96));
    EXPECT_EQ(QVBandPart::Close, band.HitTest(area, CPoint(613, 1), k96));
    EXPECT_EQ(QVBandPart::Close, band.HitTest(area, CPoint(633, 16), k96));
    EXPECT_EQ(QVBandPart::Caption, band.HitTest(area, CPoint(634, 16), k96));
    EXPECT_EQ(QVBandPart::Caption, band.HitTest(area, CPoint(613, 17), k96));
    EXPECT_EQ(QVBandPart::None, band.HitTest(area, CPoint(100, 21), k96));
    EXPECT_EQ(QVBandPart::None, band.HitTest(area, CPoint(-1, 10), k96));
}

TEST_F(Controls, BandWithoutButtonHasNone) {
    QVCaptionFigures figures;
    figures.closeBottomPx = figures.closeTopPx;
    const CQVCaptionBand band(figures);
    EXPECT_TRUE(band.GetCloseRect(CRect(0, 0, 100, 100), k96).IsRectEmpty());
    EXPECT_EQ(QVBandPart::Caption, band.HitTest(CRect(0, 0, 100, 100), CPoint(80, 10), k96));
}

TEST_F(Controls, BandMouseStates) {
    CQVCaptionBand band(kLow);
    const CRect area(0, 0, 640, 480);
    const CPoint on(620, 8), off(300, 8);
    EXPECT_EQ(QVCloseState::Normal, band.GetCloseState(TRUE));
    EXPECT_TRUE(band.MouseMove(area, on, k96));
    EXPECT_FALSE(band.MouseMove(area, on, k96)) << "nothing has changed";
    EXPECT_EQ(QVCloseState::Hot, band.GetCloseState(TRUE));
    EXPECT_EQ(QVCloseState::Disabled, band.GetCloseState(FALSE));
    EXPECT_TRUE(band.ButtonDown(area, on, k96));
    EXPECT_EQ(QVCloseState::Pressed, band.GetCloseState(TRUE));
    EXPECT_TRUE(band.MouseMove(area, off, k96));
    EXPECT_EQ(QVCloseState::Normal, band.GetCloseState(TRUE));
    EXPECT_TRUE(band.IsPressed());
    BOOL clicked = TRUE;
    EXPECT_TRUE(band.ButtonUp(area, off, k96, &clicked));
    EXPECT_FALSE(clicked) << "let go beside the button";
    EXPECT_TRUE(band.ButtonDown(area, on, k96));
    EXPECT_TRUE(band.ButtonUp(area, on, k96, &clicked));
    EXPECT_TRUE(clicked);
    EXPECT_FALSE(band.ButtonDown(area, off, k96));
    band.ButtonUp(area, on, k96, &clicked);
    EXPECT_FALSE(clicked) << "pressed elsewhere";
    EXPECT_TRUE(band.MouseLeave());
    EXPECT_FALSE(band.MouseLeave());
}

TEST_F(Controls, BandPaintsItsColours) {
    const CRect area(0, 0, 300, 120);
    Canvas canvas(area.Width(), area.Height());
    CQVCaptionBand band(kLow);
    band.Paint(&canvas.dc, area, {L"", TRUE, TRUE, TRUE}, k96);
    const auto at = [&](int x, int y) { return canvas.dc.GetPixel(x, y); };
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), at(0, 0));
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_INNER), at(1, 1));
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), at(299, 60));
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_INNER), at(298, 60));
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), at(150, 119));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION), at(150, 10));
    EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION_LINE), at(150, 20));
    EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), at(150, 21));
    const COLORREF normal = QV_GetSysColor(QVCLR_CLOSE_ACTIVE);
    EXPECT_EQ(normal, at(275, 3));
    EXPECT_EQ(QV_LightenColor(normal), at(273, 5)) << "border of the button";
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), at(272, 5)) << "line round it";
    EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), at(294, 5));
}

TEST_F(Controls, BandPaintsEachStateOfTheButton) {
    const CRect area(0, 0, 300, 60);
    Canvas canvas(area.Width(), area.Height());
    CQVCaptionBand band(kLow);
    const CPoint on(280, 8), inside(275, 3);
    const auto color = [&](BOOL active, BOOL closable) {
        band.Paint(&canvas.dc, area, {nullptr, active, closable, TRUE}, k96);
        return canvas.dc.GetPixel(inside);
    };
    EXPECT_EQ(QV_GetSysColor(59), color(FALSE, TRUE));
    EXPECT_EQ(QV_GetSysColor(64), color(TRUE, TRUE));
    EXPECT_EQ(QV_GetSysColor(67), color(TRUE, FALSE));
    EXPECT_EQ(QV_GetSysColor(62), color(FALSE, FALSE));
    band.MouseMove(area, on, k96);
    EXPECT_EQ(QV_GetSysColor(60), color(FALSE, TRUE));
    EXPECT_EQ(QV_GetSysColor(65), color(TRUE, TRUE));
    band.ButtonDown(area, on, k96);
    EXPECT_EQ(QV_GetSysColor(61), color(FALSE, TRUE));
    EXPECT_EQ(QV_GetSysColor(66), color(TRUE, TRUE));
    band.Paint(nullptr, area, {}, k96); // nothing to paint on
    band.Paint(&canvas.dc, CRect(), {L"empty area", TRUE, TRUE, TRUE}, k96);
}

TEST_F(Controls, AnchoredRectangles) {
    const CRect child(10, 20, 60, 40);
    const CSize from(100, 100), to(130, 150);
    struct Row {
        int mode;
        DWORD flags;
        CRect expected;
    };
    const Row rows[] = {
        {QVANCHOR_TOP_LEFT, 0, CRect(10, 20, 60, 40)},
        {QVANCHOR_TOP_RIGHT, 0, CRect(40, 20, 90, 40)},
        {QVANCHOR_BOTTOM_LEFT, QVANCHOR_KEEP_SIZE, CRect(10, 70, 60, 90)},
        {QVANCHOR_BOTTOM_RIGHT, QVANCHOR_KEEP_SIZE, CRect(40, 70, 90, 90)},
        {QVANCHOR_FILL, QVANCHOR_RESIZE, CRect(10, 20, 90, 90)},
        {QVANCHOR_FILL, 0, CRect(10, 20, 90, 90)},
        {QVANCHOR_FILL, QVANCHOR_KEEP_SIZE, CRect(10, 20, 60, 40)},
        {QVANCHOR_TOP_RIGHT, QVANCHOR_RESIZE, CRect(10, 20, 90, 40)},
        {QVANCHOR_BOTTOM_LEFT, QVANCHOR_RESIZE, CRect(10, 20, 60, 90)},
        {77, 0, CRect(10, 20, 60, 40)},
    };
    for (const Row& row : rows) {
        const CRect got = QV_GetAnchoredRect(child, from, to, row.mode, row.flags);
        EXPECT_TRUE(got == row.expected) << "mode " << row.mode << " flags " << row.flags << ": " << got.left
                                         << "," << got.top << "," << got.right << "," << got.bottom;
    }
    EXPECT_TRUE(QV_GetAnchoredRect(child, from, CSize(20, 20), QVANCHOR_FILL, 0) == CRect(10, 20, 10, 20))
        << "never less than nothing";
}

} // namespace controls_test
