#include "FileDialogLayout.h"

#include "QVFileDialogDefs.h"

#include <QVSkin.h>

#include <algorithm>

namespace _qv_commonwnd {

namespace {

// Pixels at 96 DPI.
constexpr int kControlDropPx = 21; // the height of the painted caption
constexpr int kFrameGrowthPx = 5;
constexpr int kLeastButtonWidthPx = 90;
constexpr int kImportGapPx = 4;    // between Cancel and the folder import panel, and below that panel
constexpr int kBelowImportPx = 10; // between the folder import panel and the frame's bottom
constexpr int kAdvanceRightPx = 4;
constexpr int kAdvanceBottomPx = 10;
constexpr int kAdvanceImportDropPx = 4; // how far the host's window is cut and lowered beside the panel
constexpr int kLeastAdvancedWidthPx = 500;
constexpr int kLeastAdvancedHeightPx = 400;
constexpr int kFixedWidthPx = 640;
constexpr int kFixedHeightPx = 520;
constexpr int kPsdSidePx = 2;
constexpr int kPsdRisePx = 7;
constexpr int kPsdBottomPx = 10;

constexpr DWORD kBothOptions = FDO_KEEPOK | FDO_IMPORTFOLDER;

int Px(int px96, UINT dpi) {
    return _qv_commonctrl::QV_ScaleForDpi(px96, dpi);
}

} // namespace

OpenButtonPlace PlanOpenButton(DWORD options) {
    if ((options & kBothOptions) == kBothOptions)
        return OpenButtonPlace::Widened;
    if (options & FDO_KEEPOK)
        return OpenButtonPlace::Moved;
    return options & FDO_IMPORTFOLDER ? OpenButtonPlace::Hidden : OpenButtonPlace::Stays;
}

CRect MovedControl(const CRect& control, UINT dpi) {
    return control + CPoint(0, Px(kControlDropPx, dpi));
}

CRect WidenedButton(const CRect& moved, UINT dpi) {
    CRect button(moved);
    button.left = std::min<LONG>(button.left, button.right - Px(kLeastButtonWidthPx, dpi));
    return button;
}

CRect ImportPanelBelow(const CRect& cancel, UINT dpi) {
    return CRect(CPoint(cancel.left, cancel.bottom + Px(kImportGapPx, dpi)), cancel.Size());
}

int FrameGrowth(UINT dpi) {
    return Px(kFrameGrowthPx, dpi);
}

int MissingHeight(CSize client, int importPanelBottom, CSize advance, UINT dpi) {
    const bool isBelow = advance.cy > 0 && advance.cx >= client.cx;
    const int below =
        isBelow ? Px(kImportGapPx, dpi) + advance.cy + Px(kAdvanceBottomPx, dpi) : Px(kBelowImportPx, dpi);
    return std::max(0, importPanelBottom + below - static_cast<int>(client.cy));
}

CRect PlaceAdvanceWindow(CSize client, CSize advance, DWORD options, std::optional<int> importPanelBottom,
                         UINT dpi) {
    if (advance.cx >= client.cx)
        return CRect(CPoint(0, client.cy - advance.cy - Px(kAdvanceBottomPx, dpi)),
                     CSize(client.cx, advance.cy));
    const int left = client.cx - advance.cx - Px(kAdvanceRightPx, dpi);
    if (!(options & FDO_IMPORTFOLDER))
        return CRect(CPoint(left, client.cy - advance.cy - Px(kAdvanceBottomPx, dpi)), advance);
    int top = client.cy - advance.cy + Px(kAdvanceImportDropPx, dpi);
    int height = advance.cy - Px(kAdvanceImportDropPx, dpi);
    if (importPanelBottom && *importPanelBottom > top) {
        const int gap = Px(kImportGapPx, dpi);
        height += top - *importPanelBottom - gap;
        top = *importPanelBottom + gap;
    }
    return CRect(CPoint(left, top), CSize(advance.cx, std::max(0, height)));
}

TrackLimits LimitsOfSize(CSize advance, UINT dpi) {
    if (advance.cx == 0 && advance.cy == 0) {
        const CSize fixed(Px(kFixedWidthPx, dpi), Px(kFixedHeightPx, dpi));
        return {fixed, fixed};
    }
    const int width = std::max<int>(advance.cx, Px(kLeastAdvancedWidthPx, dpi));
    return {CSize(width, advance.cy + Px(kLeastAdvancedHeightPx, dpi)), std::nullopt};
}

CPoint CentredOnScreen(CSize screen, CSize client) {
    return CPoint((screen.cx - client.cx) / 2, (screen.cy - client.cy) / 2);
}

CRect PsdPanelBelow(const CRect& client, int panelHeight, UINT dpi) {
    return CRect(client.left + Px(kPsdSidePx, dpi), client.bottom - Px(kPsdRisePx, dpi),
                 client.right - Px(kPsdSidePx, dpi), client.bottom + panelHeight - Px(kPsdBottomPx, dpi));
}

} // namespace _qv_commonwnd
