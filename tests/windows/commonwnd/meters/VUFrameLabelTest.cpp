// Every text and line of the meter frame: its words, font, colour and place.
#include "VUFrameFixture.h"

#include <algorithm>
#include <cmath>

using namespace vuframe_test;

namespace {

constexpr int kScaleTop = 86;
constexpr int kScaleLeft = 10; // of the first group's scale
constexpr int kFoot = 20;      // from the end of the scale to that of the client area
constexpr int kMarksDb[] = {0, -3, -6, -12, -20, -30, -40, -60, -120};
constexpr UINT kCentred = DT_CENTER | DT_SINGLELINE | DT_NOCLIP;

void UiFont(CFont& font, int height) {
    LOGFONTW log = {};
    QV_GetSysFont(QVFONT_UI)->GetLogFont(&log);
    log.lfHeight = height;
    font.CreateFontIndirect(&log);
}

class VUFrameLabel : public VUFrame {
  protected:
    // A text as it should look, alone on a plain ground; the picture is as large as the client area.
    static Picture Drawn(CSize size, const wchar_t* text, CRect place, UINT format, CFont* font, int color,
                         int ground) {
        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
        CBitmap* const formerBitmap = memory.SelectObject(&bitmap);
        memory.FillSolidRect(CRect(CPoint(0, 0), size), QV_GetSysColor(ground));
        memory.SetBkMode(TRANSPARENT);
        memory.SetTextColor(QV_GetSysColor(color));
        CFont* const formerFont = memory.SelectObject(font);
        memory.DrawText(text, place, format);
        memory.SelectObject(formerFont);
        memory.SelectObject(formerBitmap);
        return Picture::ofBitmap(static_cast<HBITMAP>(bitmap.GetSafeHandle()));
    }

    static CSize SizeOf(const Picture& shot) { return CSize(shot.width(), shot.height()); }

    static int MarkY(const Picture& shot, int db) {
        const int length = shot.height() - kFoot - kScaleTop;
        return kScaleTop +
               static_cast<int>(std::lround((100.0 - _qv_extractrl::QVX_DBToPos(db)) * length / 100.0));
    }

    // Rows of the scale's figures in which anything is drawn.
    static std::vector<bool> FigureRows(const Picture& shot, COLORREF ground) {
        std::vector<bool> rows;
        for (int y = 0; y < shot.height() - 10; ++y) {
            const RECT row = {kScaleLeft + 1, y, kScaleLeft + 22, y + 1};
            rows.push_back(shot.count(ground, row) < row.right - row.left);
        }
        return rows;
    }
};

} // namespace

TEST_F(VUFrameLabel, ChannelsBearTheirNumbers) {
    TestFrame frame;
    Set(frame, 2, 3, 8);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    CFont font;
    UiFont(font, -11);
    const struct {
        int left; // of the group's first meter
        int channel;
        const wchar_t* text;
    } rows[] = {{40, 0, L"In1"}, {40, 1, L"In2"},  {124, 0, L"A1"}, {124, 1, L"A2"},
                {124, 2, L"A3"}, {230, 0, L"Ch1"}, {230, 7, L"Ch8"}};
    for (const auto& row : rows) {
        const CRect cell(CPoint(row.left + 3 + 22 * row.channel - 3, 40), CSize(22, 26));
        const Picture expected =
            Drawn(SizeOf(shot), row.text, cell, kCentred | DT_VCENTER, &font, QVCLR_TEXT, QVCLR_PANEL_RAISED);
        EXPECT_EQ(0, shot.part(cell).differences(expected.part(cell))) << row.text;
    }
}

TEST_F(VUFrameLabel, TitlesStandOverTheMiddleInTheirColour) {
    TestFrame frame;
    Set(frame, 4, 10, 8);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    const struct {
        int left;
        int count;
        const wchar_t* text;
    } rows[] = {{40, 4, L"Input"}, {168, 10, L"Track"}, {428, 8, L"Output"}};
    for (const auto& row : rows) {
        const CRect cell(CPoint(row.left + (22 * row.count - 30) / 2, 8), CSize(30, 17));
        const Picture expected = Drawn(SizeOf(shot), row.text, cell, kCentred, QV_GetSysFont(QVFONT_TITLE),
                                       QVCLR_TEXT_TITLE, QVCLR_PANEL);
        CRect around(cell);
        around.InflateRect(15, 0);
        EXPECT_EQ(0, shot.part(around).differences(expected.part(around))) << row.text;
        EXPECT_LT(20, shot.count(QV_GetSysColor(QVCLR_TEXT_TITLE), around)) << row.text;
    }
}

TEST_F(VUFrameLabel, TicksAreDrawnByTheSkinsTwoPens) {
    TestFrame frame;
    Set(frame, 0, 2, 0);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    const auto colourOf = [](int id) {
        CPen* pen = QV_LoadPen(id);
        LOGPEN log = {};
        pen->GetLogPen(&log);
        QV_ReleaseCommonRes(pen);
        return log.lopnColor;
    };
    for (const int db : kMarksDb) {
        const int y = MarkY(shot, db);
        for (int x = kScaleLeft + 30 - 7; x < kScaleLeft + 30 - 3; ++x) {
            EXPECT_EQ(colourOf(QVPEN_SCALE_TICK), shot.at(x, y)) << db;
            EXPECT_EQ(colourOf(QVPEN_SCALE_SHADOW), shot.at(x, y - 1)) << db;
        }
    }
}

TEST_F(VUFrameLabel, TheFootReadsMinusInfinity) {
    TestFrame frame;
    Set(frame, 0, 2, 0);
    frame.Paint();
    const Picture shot = Picture::ofClient(frame);
    const int y = MarkY(shot, -120);
    const CRect place(kScaleLeft, y - 8, kScaleLeft + 22, y + 12);
    const UINT format = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP;
    const Picture sign = Drawn(SizeOf(shot), L"\u221E", place, format, QV_GetSysFont(QVFONT_TITLE),
                               QVCLR_TEXT, QVCLR_PANEL_RAISED);
    int inkOfSign = 0;
    int missing = 0;
    int more = 0;
    for (int row = place.top; row < place.bottom - 2; ++row) {
        for (int x = place.left; x < place.right; ++x) {
            const bool isInk = sign.at(x, row) != QV_GetSysColor(QVCLR_PANEL_RAISED);
            const bool isDrawn = shot.at(x, row) != QV_GetSysColor(QVCLR_PANEL_RAISED);
            inkOfSign += isInk;
            missing += isInk && !isDrawn;
            more += isDrawn && !isInk;
        }
    }
    EXPECT_LT(8, inkOfSign);
    EXPECT_EQ(0, missing);
    EXPECT_LT(0, more); // the minus
}

// From the lowest to the highest window: as many figures as marks, with a free row between each two.
TEST_F(VUFrameLabel, AllNineMarksAreLabelledAtEveryHeight) {
    TestFrame frame;
    Set(frame, 0, 2, 0);
    for (int height = 298; height <= 798; height += 25) {
        frame.SetWindowPos(nullptr, 0, 0, 300, height, SWP_NOMOVE | SWP_NOZORDER);
        frame.Paint();
        const Picture shot = Picture::ofClient(frame);
        if (height == 298) {
            EXPECT_TRUE(shot.save(qvtest::picturePath(L"meter-frame-lowest")));
        }
        const std::vector<bool> rows = FigureRows(shot, QV_GetSysColor(QVCLR_PANEL_RAISED));
        const auto last =
            static_cast<size_t>(MarkY(shot, -120) - 6); // above the minus and the sign of infinity
        int figures = 0;
        for (size_t y = kScaleTop - 8; y < last; ++y)
            figures += rows[y] && !rows[y - 1];
        EXPECT_EQ(8, figures) << height;
        EXPECT_FALSE(rows[last]) << height;
        EXPECT_NE(rows.end(), std::find(rows.begin() + static_cast<ptrdiff_t>(last), rows.end(), true))
            << height;
    }
}

TEST_F(VUFrameLabel, AnEmptyGroupHasNoTitleAndNoScale) {
    const struct {
        int in, track, out;
        int first, second; // channels of the groups that are there
    } faces[] = {{0, 5, 8, 5, 8}, {4, 0, 8, 4, 8}, {4, 5, 0, 4, 5}};
    for (const auto& face : faces) {
        TestFrame frame;
        Set(frame, face.in, face.track, face.out);
        frame.Paint();
        const Picture shot = Picture::ofClient(frame);
        const int secondLeft = 40 + 22 * face.first + 40;
        // What is drawn above the panels lies round the middles of the two groups.
        for (int x = 0; x < shot.width(); ++x) {
            const bool nearFirst = std::abs(x - (40 + 11 * face.first)) < 35;
            const bool nearSecond = std::abs(x - (secondLeft + 11 * face.second)) < 35;
            if (nearFirst || nearSecond)
                continue;
            ASSERT_EQ(1, shot.colours({x, 4, x + 1, 30})) << x;
        }
        // Ticks stand left of the two groups and nowhere else.
        int scales = 0;
        const int y = MarkY(shot, -20);
        for (int x = 0; x < shot.width() - 1; ++x)
            scales += shot.at(x, y) != shot.at(x, y - 3) && x == (x < secondLeft - 30 ? 33 : secondLeft - 7);
        EXPECT_EQ(2, scales);
    }
}
