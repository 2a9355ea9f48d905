// PreviewPaint.h: how the parts of a file's preview are drawn. Sizes at 96 dots an inch are scaled to `dpi`.
#pragma once

#include "media/PixelBitmap.h"
#include "media/SoundOutline.h"

#include <vector>

// The picture in the middle of its frame, as large as it is.
void PaintThumbnail(CDC& dc, const CRect& frame, CPixelBitmap& picture);

// The layers of a document, the top one first; the last row says how many more there are when there is no room for
// all. `layers` begins with the bottom one.
void PaintLayers(CDC& dc, const CRect& frame, const std::vector<CString>& layers, UINT dpi);

// A sound's channels, each in a lane of its own as far as there is room.
void PaintOutline(CDC& dc, const CRect& frame, const SoundOutline& outline, UINT dpi);

// Lines of text from the top down, the first in the colour of titles.
void PaintLines(CDC& dc, const CRect& area, const std::vector<CString>& lines, UINT dpi);
