// Figures of the folder chooser.
#include "folders/PathBrowseLayout.h"

#include <gtest/gtest.h>

namespace {

using namespace _qv_commonwnd;

struct Row {
    CRect client;
    UINT dpi;
    CRect title, tree, ok, cancel, newFolder;
};

const Row kRows[] = {
    {CRect(0, 0, 450, 500), 96, CRect(10, 35, 440, 57), CRect(10, 63, 440, 456), CRect(278, 467, 348, 489),
     CRect(358, 467, 428, 489), CRect(198, 467, 268, 489)},
    {CRect(0, 0, 900, 1000), 192, CRect(20, 70, 880, 114), CRect(20, 126, 880, 912),
     CRect(556, 934, 696, 978), CRect(716, 934, 856, 978), CRect(396, 934, 536, 978)},
    {CRect(100, 200, 550, 700), 96, CRect(110, 235, 540, 257), CRect(110, 263, 540, 656),
     CRect(378, 667, 448, 689), CRect(458, 667, 528, 689), CRect(298, 667, 368, 689)},
    // Too small: nothing has a negative size.
    {CRect(0, 0, 15, 60), 96, CRect(10, 35, 10, 57), CRect(10, 63, 10, 63), CRect(-157, 74, -87, 96),
     CRect(-77, 74, -7, 96), CRect(-237, 74, -167, 96)},
};

TEST(PathBrowseLayoutTable, PlacesOfTheControls) {
    for (const Row& row : kRows) {
        const PathBrowseLayout layout = LayOutPathBrowse(row.client, row.dpi);
        EXPECT_EQ(row.title, layout.title);
        EXPECT_EQ(row.tree, layout.tree);
        EXPECT_EQ(row.ok, layout.ok);
        EXPECT_EQ(row.cancel, layout.cancel);
        EXPECT_EQ(row.newFolder, layout.newFolder);
    }
}

TEST(PathBrowseLayoutTable, SizeOfTheWindow) {
    EXPECT_EQ(CSize(450, 500), PathBrowseSize(96));
    EXPECT_EQ(CSize(675, 750), PathBrowseSize(144));
}

TEST(PathBrowseLayoutTable, CaptionBand) {
    const _qv_commonctrl::CQVCaptionBand band(PathBrowseCaption());
    const CRect client(0, 0, 450, 500);
    EXPECT_EQ(CRect(0, 0, 450, 25), band.GetCaptionRect(client, 96));
    EXPECT_EQ(CRect(423, 1, 444, 17), band.GetCloseRect(client, 96));
    EXPECT_EQ(CRect(422, 0, 445, 18), band.GetCloseBounds(client, 96));
    EXPECT_EQ(5, band.GetTextRect(client, 96).left);
    EXPECT_EQ(CRect(0, 0, 900, 50), band.GetCaptionRect(CRect(0, 0, 900, 1000), 192));
}

} // namespace
