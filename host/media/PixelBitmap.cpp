#include "PixelBitmap.h"

bool CPixelBitmap::Create(CSize size) {
    Clear();
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    if (!m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        return false;
    m_bits = static_cast<BYTE*>(bits);
    m_size = size;
    return true;
}

void CPixelBitmap::Clear() {
    m_bitmap.DeleteObject();
    m_bits = nullptr;
    m_size = CSize();
}
