// Where the file dialog's parts stand: figures at 96 DPI and scaled.
#include "filedialog/FileDialogLayout.h"

#include "QVFileDialogDefs.h"
#include "fileview/ShellListSkin.h"

#include <gtest/gtest.h>

namespace filedialog_rules {

using namespace _qv_commonwnd;

constexpr UINT k96 = 96;
constexpr UINT k192 = 192;

TEST(FileDialogLayout, OptionsSayWhatBecomesOfTheOpenButton) {
    EXPECT_EQ(OpenButtonPlace::Stays, PlanOpenButton(0));
    EXPECT_EQ(OpenButtonPlace::Moved, PlanOpenButton(FDO_KEEPOK));
    EXPECT_EQ(OpenButtonPlace::Hidden, PlanOpenButton(FDO_IMPORTFOLDER));
    EXPECT_EQ(OpenButtonPlace::Widened, PlanOpenButton(FDO_KEEPOK | FDO_IMPORTFOLDER));
}

TEST(FileDialogLayout, BitsThatMeanNothingAreIgnored) {
    EXPECT_EQ(OpenButtonPlace::Stays, PlanOpenButton(0xFFFFFFFC));
    EXPECT_EQ(OpenButtonPlace::Moved, PlanOpenButton(0xFFFFFFFD));
    EXPECT_EQ(OpenButtonPlace::Hidden, PlanOpenButton(0xFFFFFFFE));
    EXPECT_EQ(OpenButtonPlace::Widened, PlanOpenButton(0xFFFFFFFF));
}

TEST(FileDialogLayout, ControlsMoveDownByTheCaption) {
    EXPECT_TRUE(CRect(10, 41, 110, 64) == MovedControl(CRect(10, 20, 110, 43), k96));
    EXPECT_TRUE(CRect(10, 62, 110, 85) == MovedControl(CRect(10, 20, 110, 43), k192));
    EXPECT_TRUE(CRect(0, 21, 0, 21) == MovedControl(CRect(), k96));
}

TEST(FileDialogLayout, FrameGrows) {
    EXPECT_EQ(5, FrameGrowth(k96));
    EXPECT_EQ(10, FrameGrowth(k192));
}

TEST(FileDialogLayout, NarrowButtonsAreWidenedToTheLeft) {
    EXPECT_TRUE(CRect(410, 20, 500, 43) == WidenedButton(CRect(425, 20, 500, 43), k96));
    EXPECT_TRUE(CRect(410, 20, 500, 43) == WidenedButton(CRect(410, 20, 500, 43), k96)) << "just wide enough";
    EXPECT_TRUE(CRect(405, 20, 500, 43) == WidenedButton(CRect(405, 20, 500, 43), k96)) << "wider stays";
    EXPECT_TRUE(CRect(320, 20, 500, 43) == WidenedButton(CRect(425, 20, 500, 43), k192));
}

TEST(FileDialogLayout, ImportPanelStandsBelowCancel) {
    EXPECT_TRUE(CRect(400, 54, 495, 79) == ImportPanelBelow(CRect(400, 25, 495, 50), k96));
    EXPECT_TRUE(CRect(400, 58, 495, 83) == ImportPanelBelow(CRect(400, 25, 495, 50), k192));
}

TEST(FileDialogLayout, FrameIsHighEnoughForTheImportPanel) {
    const CSize none(0, 0);
    EXPECT_EQ(16, MissingHeight(CSize(600, 416), 422, none, k96));
    EXPECT_EQ(0, MissingHeight(CSize(600, 432), 422, none, k96));
    EXPECT_EQ(1, MissingHeight(CSize(600, 431), 422, none, k96));
    EXPECT_EQ(0, MissingHeight(CSize(600, 1000), 422, none, k96));
    EXPECT_EQ(26, MissingHeight(CSize(600, 416), 422, none, k192));
    EXPECT_EQ(16, MissingHeight(CSize(600, 416), 422, CSize(599, 100), k96)) << "beside the panel";
}

TEST(FileDialogLayout, WideAdvanceWindowStandsBelowTheImportPanel) {
    const CSize advance(600, 100);
    const CSize client(600, 416);
    const CSize high(600, client.cy + MissingHeight(client, 422, advance, k96));
    EXPECT_EQ(426, PlaceAdvanceWindow(high, advance, FDO_KEEPOK | FDO_IMPORTFOLDER, 422, k96).top);
    EXPECT_EQ(0, MissingHeight(high, 422, advance, k96));
}

struct AdvanceCase {
    const char* name;
    CSize client;
    CSize advance;
    DWORD options;
    std::optional<int> panelBottom;
    CRect expected;
};

class AdvancePlace : public testing::TestWithParam<AdvanceCase> {};

TEST_P(AdvancePlace, IsAsTheFiguresSay) {
    const AdvanceCase& row = GetParam();
    const CRect place = PlaceAdvanceWindow(row.client, row.advance, row.options, row.panelBottom, k96);
    EXPECT_TRUE(row.expected == place)
        << place.left << "," << place.top << " " << place.Width() << "x" << place.Height();
}

INSTANTIATE_TEST_SUITE_P(
    Table, AdvancePlace,
    testing::Values(
        AdvanceCase{"narrow", {600, 420}, {300, 100}, FDO_KEEPOK, std::nullopt, CRect(296, 310, 596, 410)},
        AdvanceCase{"withoutOptions", {600, 420}, {300, 100}, 0, std::nullopt, CRect(296, 310, 596, 410)},
        AdvanceCase{"justAsWide", {600, 420}, {600, 100}, FDO_KEEPOK, std::nullopt, CRect(0, 310, 600, 410)},
        AdvanceCase{
            "onePixelNarrower", {600, 420}, {599, 100}, FDO_KEEPOK, std::nullopt, CRect(-3, 310, 596, 410)},
        AdvanceCase{"wider", {600, 420}, {900, 100}, FDO_IMPORTFOLDER, 350, CRect(0, 310, 600, 410)},
        AdvanceCase{
            "importPanelAbove", {600, 420}, {300, 100}, FDO_IMPORTFOLDER, 300, CRect(296, 324, 596, 420)},
        AdvanceCase{
            "importPanelTouches", {600, 420}, {300, 100}, FDO_IMPORTFOLDER, 324, CRect(296, 324, 596, 420)},
        AdvanceCase{"importPanelReachesIn", {600, 420}, {300, 100}, 3, 350, CRect(296, 354, 596, 420)},
        AdvanceCase{"importPanelMissing", {600, 420}, {300, 100}, 3, std::nullopt, CRect(296, 324, 596, 420)},
        AdvanceCase{"importPanelCoversAll", {600, 420}, {300, 100}, 3, 500, CRect(296, 504, 596, 504)},
        AdvanceCase{"empty", {600, 420}, {0, 0}, FDO_KEEPOK, std::nullopt, CRect(596, 410, 596, 410)}),
    [](const testing::TestParamInfo<AdvanceCase>& row) { return std::string(row.param.name); });

TEST(FileDialogLayout, WithoutAdvanceWindowTheSizeIsFixed) {
    const TrackLimits limits = LimitsOfSize(CSize(0, 0), k96);
    EXPECT_TRUE(CSize(640, 520) == limits.least);
    ASSERT_TRUE(limits.most);
    EXPECT_TRUE(CSize(640, 520) == *limits.most);
    EXPECT_TRUE(CSize(1280, 1040) == LimitsOfSize(CSize(0, 0), k192).least);
}

TEST(FileDialogLayout, AdvanceWindowSetsTheLeastSize) {
    EXPECT_TRUE(CSize(500, 500) == LimitsOfSize(CSize(300, 100), k96).least);
    EXPECT_TRUE(CSize(700, 600) == LimitsOfSize(CSize(700, 200), k96).least);
    EXPECT_TRUE(CSize(500, 401) == LimitsOfSize(CSize(0, 1), k96).least) << "only (0, 0) is none";
    EXPECT_FALSE(LimitsOfSize(CSize(300, 100), k96).most);
}

TEST(FileDialogLayout, CentreHalvesTowardZero) {
    EXPECT_TRUE(CPoint(640, 330) == CentredOnScreen(CSize(1920, 1080), CSize(640, 420)));
    EXPECT_TRUE(CPoint(2, 3) == CentredOnScreen(CSize(10, 11), CSize(5, 4)));
    EXPECT_TRUE(CPoint(-2, -1) == CentredOnScreen(CSize(5, 4), CSize(10, 7))) << "larger than the screen";
}

TEST(FileDialogLayout, PsdPanelHangsBelowTheClientArea) {
    EXPECT_TRUE(CRect(2, 413, 652, 470) == PsdPanelBelow(CRect(0, 0, 654, 420), 60, k96));
    EXPECT_TRUE(CRect(4, 406, 650, 520) == PsdPanelBelow(CRect(0, 0, 654, 420), 120, k192));
}

TEST(FileDialogLayout, ListIsSkinnedFromVersionSixOn) {
    EXPECT_FALSE(SkinsShellList(0));
    EXPECT_FALSE(SkinsShellList(5));
    EXPECT_TRUE(SkinsShellList(6));
    EXPECT_TRUE(SkinsShellList(10));
}

} // namespace filedialog_rules
