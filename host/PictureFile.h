// PictureFile.h: a picture file as a bitmap, by the system's codecs.
#pragma once

#include <afxwin.h>

// Decodes the first frame of a picture file as a 32-bit bitmap, scaled down to fit `most` (0, 0: as it is). The caller
// deletes the bitmap. `size` gets the file's own size in pixels. Null, `size` untouched, when it cannot be read.
HBITMAP LoadPictureFile(LPCWSTR path, CSize most, CSize& size);

// Writes a window with its frame and controls, as it was last painted, as a PNG file. The window must be of this
// process. false when it cannot be read or the file not be written.
bool SaveWindowPicture(HWND window, LPCWSTR path);
