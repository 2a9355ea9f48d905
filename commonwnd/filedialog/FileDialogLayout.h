// Where the file dialog's parts stand over the system dialog: plain values, no window. Rectangles are client
// co-ordinates of the system dialog's frame unless said otherwise; the figures are pixels at 96 DPI and scaled to
// `dpi`.
#pragma once

#include <afxwin.h>

#include <optional>

namespace _qv_commonwnd {

// What becomes of the Open or Save button below the painted caption.
enum class OpenButtonPlace {
    Moved,   // down with the others
    Hidden,  // the folder import panel stands in its moved rectangle
    Stays,   // where the system has put it
    Widened, // moved and made wide enough for the folder import panel's company
};
// `options`: QVFileDialogOption bits.
OpenButtonPlace PlanOpenButton(DWORD options);

// A control of the system dialog, below the painted caption.
CRect MovedControl(const CRect& control, UINT dpi);
// A moved button, at least as wide as the folder import button; its right edge stays.
CRect WidenedButton(const CRect& moved, UINT dpi);
// The folder import panel below the Cancel button.
CRect ImportPanelBelow(const CRect& cancel, UINT dpi);

// The height that the frame gains for the painted caption beside what the system's own caption leaves.
int FrameGrowth(UINT dpi);

// How much taller the client area must be for the folder import panel below Cancel to be seen whole: the system may
// have made its dialog lower after the panel was placed, and a docked window as wide as the client area begins below
// the panel. `advance`: the host's window, (0, 0) for none. 0 when it is high enough.
int MissingHeight(CSize client, int importPanelBottom, CSize advance, UINT dpi);

// The host's window in a frame whose client area has the size `client`. `importPanelBottom`: lower edge of the
// folder import panel; none when there is no panel. The height is never negative.
CRect PlaceAdvanceWindow(CSize client, CSize advance, DWORD options, std::optional<int> importPanelBottom,
                         UINT dpi);

// Size limits; `advance` is the host's docked window, (0, 0) for none.
struct TrackLimits {
    CSize least;
    std::optional<CSize> most; // none: not limited
};
TrackLimits LimitsOfSize(CSize advance, UINT dpi);

// Screen position of a frame whose client area is centred by its size; halves go toward zero.
CPoint CentredOnScreen(CSize screen, CSize client);

// The strip with the choices for Photoshop documents, in the client area as it is before the frame grows by the
// strip's height.
CRect PsdPanelBelow(const CRect& client, int panelHeight, UINT dpi);

} // namespace _qv_commonwnd
