// The picture of a meter face: the panels of its groups, channel labels, titles and dB scales.
#pragma once

#include "VUFaceLayout.h"

namespace _qv_commonwnd {

// The pens of a scale's ticks; borrowed.
struct VUScalePens {
    CPen* tick;
    CPen* shadow; // one pixel above
};

// Paints the panels, labels and titles of a face over the filled ground of a client area, in the skin's text
// colour, which the context keeps. Meters and buttons are windows of their own.
void PaintVUFace(CDC& dc, const CRect& client, const CVUFaceLayout& face, UINT dpi);

// Paints the scale of `count` marks (dB, from the top down) that fills a rectangle from its top to its foot,
// in the text colour of the context; minus infinity stands at -120 dB, in the font of the context.
void PaintVUScale(CDC& dc, const int* marksDb, int count, const CRect& place, const VUScalePens& pens,
                  UINT dpi);

} // namespace _qv_commonwnd
