// PictureFile.h: pictures in files, by the system's codecs.
#pragma once

#include "PixelBitmap.h"

// Decodes the first frame of a picture file, scaled down to fit `most` (0, 0: as it is). `size` gets the file's own size
// in pixels. False, `size` untouched and no bitmap, when it cannot be read.
bool LoadPictureFile(LPCWSTR path, CSize most, CPixelBitmap& bitmap, CSize& size);

// Writes a PNG file. False when it cannot be written.
bool SavePictureFile(LPCWSTR path, const CPixelBitmap& bitmap);
