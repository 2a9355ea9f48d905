#include "QVMemoDC.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace _qv_commonctrl {

namespace {

HBITMAP MakeBitmap(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

// Whether a picture has a pixel of colour `key`. One that cannot be read may have.
bool HasPixelOf(HBITMAP bitmap, const CSize& size, COLORREF key) {
    DIBSECTION section = {};
    if (!bitmap || ::GetObjectW(bitmap, sizeof section, &section) != sizeof section || !section.dsBm.bmBits)
        return true;
    ::GdiFlush();
    constexpr std::uint32_t colorMask = 0x00FFFFFF;
    const std::uint32_t pixel = static_cast<std::uint32_t>(GetRValue(key)) << 16 |
                                static_cast<std::uint32_t>(GetGValue(key)) << 8 | GetBValue(key);
    const auto* const bits = static_cast<const std::byte*>(section.dsBm.bmBits);
    for (int y = 0; y < size.cy; ++y) {
        const auto* const row = reinterpret_cast<const std::uint32_t*>(
            bits + static_cast<size_t>(y) * static_cast<size_t>(section.dsBm.bmWidthBytes));
        if (std::any_of(row, row + size.cx,
                        [=](std::uint32_t value) { return (value & colorMask) == pixel; }))
            return true;
    }
    return false;
}

// One picture kept between paintings. Whoever finds it taken (painting inside painting, another thread) makes
// a picture of its own.
class SharedSurface {
  public:
    static SharedSurface& Get() {
        static SharedSurface surface;
        return surface;
    }

    // Null when it is taken, the picture is too large to be kept or memory ran out.
    HDC Take(int width, int height) {
        if (static_cast<long long>(width) * height > kMostPixels || m_taken.test_and_set())
            return nullptr;
        if (Grow(width, height))
            return m_dc;
        m_taken.clear();
        return nullptr;
    }

    void GiveBack() { m_taken.clear(); }

    ~SharedSurface() { Drop(); }

  private:
    static constexpr long long kMostPixels = 4 << 20; // 16 MB: a window that fills a 2560 x 1600 screen
    static constexpr int kStepPx = 64; // a window that is being sized does not grow it each time

    bool Grow(int width, int height) {
        if (m_dc && width <= m_width && height <= m_height)
            return true;
        const int newWidth = (std::max(width, m_width) / kStepPx + 1) * kStepPx;
        const int newHeight = (std::max(height, m_height) / kStepPx + 1) * kStepPx;
        Drop();
        m_dc = CreateCompatibleDC(nullptr);
        m_bitmap = MakeBitmap(newWidth, newHeight);
        if (!m_dc || !m_bitmap) {
            Drop();
            return false;
        }
        m_former = SelectObject(m_dc, m_bitmap);
        m_width = newWidth;
        m_height = newHeight;
        return true;
    }

    void Drop() {
        if (m_former)
            SelectObject(m_dc, m_former);
        if (m_bitmap)
            DeleteObject(m_bitmap);
        if (m_dc)
            DeleteDC(m_dc);
        m_dc = nullptr;
        m_bitmap = nullptr;
        m_former = nullptr;
        m_width = m_height = 0;
    }

    std::atomic_flag m_taken;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_former = nullptr;
    int m_width = 0;
    int m_height = 0;
};

} // namespace

CQVMemoDC::CQVMemoDC(CDC* target, const CRect& rect) : m_pTarget(target), m_rect(rect) {
    if (!m_pTarget || !m_pTarget->GetSafeHdc()) {
        m_pTarget = nullptr;
        return;
    }
    CRect clip;
    if (m_pTarget->GetClipBox(clip) != ERROR)
        m_rect.IntersectRect(rect, clip);
    if (m_pTarget->GetMapMode() != MM_TEXT || !OpenSurface()) {
        m_hDC = m_hAttribDC = m_pTarget->GetSafeHdc();
        return;
    }
    m_savedState = SaveDC();
    ::SetViewportOrgEx(m_hDC, 0, 0, nullptr);
    ::SetWindowOrgEx(m_hDC, m_rect.left, m_rect.top, nullptr);
    ::IntersectClipRect(m_hDC, m_rect.left, m_rect.top, m_rect.right, m_rect.bottom);
    ::SelectObject(m_hDC, ::GetCurrentObject(m_pTarget->GetSafeHdc(), OBJ_FONT));
}

bool CQVMemoDC::OpenSurface() {
    const int width = std::max(m_rect.Width(), 1);
    const int height = std::max(m_rect.Height(), 1);
    if (const HDC shared = SharedSurface::Get().Take(width, height)) {
        m_hDC = m_hAttribDC = shared;
        m_surface = Surface::Shared;
        return true;
    }
    const HDC own = ::CreateCompatibleDC(nullptr);
    m_hBitmap = MakeBitmap(width, height);
    if (!own || !m_hBitmap) {
        if (own)
            ::DeleteDC(own);
        if (m_hBitmap)
            ::DeleteObject(m_hBitmap);
        m_hBitmap = nullptr;
        return false;
    }
    m_hFormerBitmap = ::SelectObject(own, m_hBitmap);
    m_hDC = m_hAttribDC = own;
    m_surface = Surface::Own;
    return true;
}

void CQVMemoDC::CloseSurface() {
    const HDC dc = m_hDC;
    m_hDC = m_hAttribDC = nullptr; // never the base's to delete: it is shared, the target's, or deleted here
    if (m_surface == Surface::Target)
        return;
    ::RestoreDC(dc, m_savedState);
    if (m_surface == Surface::Shared) {
        SharedSurface::Get().GiveBack();
        return;
    }
    ::SelectObject(dc, m_hFormerBitmap);
    ::DeleteObject(m_hBitmap);
    ::DeleteDC(dc);
}

CQVMemoDC::~CQVMemoDC() {
    if (HasPicture())
        CopyPlain();
    CloseSurface();
}

bool CQVMemoDC::HasPicture() const {
    return !m_bCopied && m_surface != Surface::Target && !m_rect.IsRectEmpty();
}

void CQVMemoDC::CopyPlain() {
    ::BitBlt(m_pTarget->GetSafeHdc(), m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), m_hDC,
             m_rect.left, m_rect.top, SRCCOPY);
}

// A plain copy takes a fraction of the time, and most pictures do not use the key.
void CQVMemoDC::CopyTransparent(COLORREF key) {
    if (!HasPicture())
        return;
    if (HasPixelOf(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)), m_rect.Size(), key))
        ::TransparentBlt(m_pTarget->GetSafeHdc(), m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(),
                         m_hDC, m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), key);
    else
        CopyPlain();
    m_bCopied = true;
}

void CQVMemoDC::Cancel() {
    m_bCopied = true;
}

} // namespace _qv_commonctrl
