#include "PathBrowseLayout.h"

#include <algorithm>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

// Pixels at 96 DPI.
constexpr int kWindowWidthPx = 450;
constexpr int kWindowHeightPx = 500;
constexpr int kCaptionHeightPx = 25;
constexpr int kMarginPx = 10;
constexpr int kTitleHeightPx = 22;
constexpr int kTitlePitchPx = 28; // from the title's top to the tree's
constexpr int kTreeLessPx = 82;   // the tree's height is that of the client below the caption less this
constexpr int kTreeGapPx = 11;    // between tree and buttons
constexpr int kButtonWidthPx = 70;
constexpr int kButtonHeightPx = 22;
// Left edges of the buttons, counted from the client's right edge.
constexpr int kCancelFromRightPx = 92;
constexpr int kOkFromRightPx = 172;
constexpr int kNewFolderFromRightPx = 252;

constexpr int kCloseLeftFromRightPx = 27;
constexpr int kCloseRightFromRightPx = 6;
constexpr int kCloseTopPx = 1;
constexpr int kCloseBottomPx = 17;
constexpr int kCaptionTextLeftPx = 5;
constexpr int kCaptionLineInsetPx = 2;

} // namespace

CSize PathBrowseSize(UINT dpi) {
    return CSize(QV_ScaleForDpi(kWindowWidthPx, dpi), QV_ScaleForDpi(kWindowHeightPx, dpi));
}

PathBrowseLayout LayOutPathBrowse(const CRect& client, UINT dpi) {
    const auto px = [dpi](int length) { return QV_ScaleForDpi(length, dpi); };
    const int left = client.left + px(kMarginPx);
    const int bodyTop = client.top + px(kCaptionHeightPx);
    const int titleTop = bodyTop + px(kMarginPx);
    const int width = std::max(0, client.Width() - 2 * px(kMarginPx));
    const int treeTop = titleTop + px(kTitlePitchPx);
    const int treeHeight = std::max(0, static_cast<int>(client.bottom) - bodyTop - px(kTreeLessPx));
    const int buttonTop = treeTop + treeHeight + px(kTreeGapPx);
    const auto button = [&](int fromRight) {
        return CRect(CPoint(client.right - px(fromRight), buttonTop),
                     CSize(px(kButtonWidthPx), px(kButtonHeightPx)));
    };
    PathBrowseLayout layout;
    layout.title = CRect(CPoint(left, titleTop), CSize(width, px(kTitleHeightPx)));
    layout.tree = CRect(CPoint(left, treeTop), CSize(width, treeHeight));
    layout.ok = button(kOkFromRightPx);
    layout.cancel = button(kCancelFromRightPx);
    layout.newFolder = button(kNewFolderFromRightPx);
    return layout;
}

QVCaptionFigures PathBrowseCaption() {
    QVCaptionFigures figures;
    figures.captionHeightPx = kCaptionHeightPx;
    figures.closeLeftFromRightPx = kCloseLeftFromRightPx;
    figures.closeRightFromRightPx = kCloseRightFromRightPx;
    figures.closeTopPx = kCloseTopPx;
    figures.closeBottomPx = kCloseBottomPx;
    figures.textInsetPx = kCaptionTextLeftPx;
    figures.lineInsetPx = kCaptionLineInsetPx;
    figures.textColor = QVCLR_TEXT_TREE;
    figures.inactiveTextColor = QVCLR_TEXT_TREE;
    figures.groundColor = QVCLR_GROUND;
    return figures;
}

} // namespace _qv_commonwnd
