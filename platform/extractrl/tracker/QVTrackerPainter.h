// The picture of a rectangle tracker: the range, the rectangle in it and their sizes.
#pragma once

#include "QVTrackerGeometry.h"

#include <afxwin.h>

namespace _qv_extractrl {

// Everything that the picture shows beside the skin.
struct QVTrackerLook {
    QVTrackerView view; // where the range stands
    CRect rcTrack;      // units of the range
    HBITMAP hPicture;   // in the rectangle; null: a tinted ground with the rectangle's size
    int nOption;        // QVTrackerOption bits
    int nTextStyle;     // a _qv_commonctrl::QVTextStyle
    bool isFocused;
    UINT nDpi;
};

// Fills the whole client area; pixels of the control.
void QV_PaintTracker(CDC& dc, const CRect& client, const QVTrackerLook& look);

} // namespace _qv_extractrl
