#include "QVSkinImage.h"

#include "module/Guards.h"

#include <algorithm>

namespace _qv_commonctrl {

std::unique_ptr<CQVSkinImage> CQVSkinImage::Make(const Pixels& strip, int frames) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = strip.width;
    info.bmiHeader.biHeight = -strip.height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap)
        return nullptr;
    std::copy(strip.values.begin(), strip.values.end(), static_cast<uint32_t*>(bits));
    return std::unique_ptr<CQVSkinImage>(new CQVSkinImage(bitmap, strip.width, strip.height, frames));
}

CQVSkinImage::~CQVSkinImage() {
    DeleteObject(m_bitmap);
}

void CQVSkinImage::Draw(HDC dc, int frame, int x, int y) const {
    const MemoryDc memory(CreateCompatibleDC(dc));
    if (!memory)
        return;
    const DcSelection selection(memory.get(), m_bitmap);
    const CSize size = FrameSize();
    const int shown = std::clamp(frame, 0, m_frames - 1);
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    AlphaBlend(dc, x, y, size.cx, size.cy, memory.get(), shown * size.cx, 0, size.cx, size.cy, blend);
}

} // namespace _qv_commonctrl
