#include "WindowPicture.h"

#include "media/PictureFile.h"

namespace {

// The drawing functions leave the alpha of what they touch undefined.
void MakeOpaque(const CPixelBitmap& bitmap) {
    auto* pixels = reinterpret_cast<DWORD*>(bitmap.Bits());
    for (int i = 0; i < bitmap.Size().cx * bitmap.Size().cy; ++i)
        pixels[i] |= 0xFF000000u;
}

} // namespace

bool SaveWindowPicture(HWND window, LPCWSTR path) {
    CRect frame;
    CPixelBitmap picture;
    if (!::GetWindowRect(window, &frame) || frame.IsRectEmpty() || !picture.Create(frame.Size()))
        return false;
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC source = ::GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
    CDC target;
    target.CreateCompatibleDC(nullptr);
    CBitmap* const former = target.SelectObject(picture.Bitmap());
    ::BitBlt(target, 0, 0, frame.Width(), frame.Height(), source, 0, 0, SRCCOPY);
    target.SelectObject(former);
    ::ReleaseDC(window, source);
    ::GdiFlush();
    MakeOpaque(picture);
    return SavePictureFile(path, picture);
}
