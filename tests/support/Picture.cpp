#include "Picture.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace qvtest {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000u;
constexpr std::uint64_t kHashStart = 14695981039346656037ull;
constexpr std::uint64_t kHashFactor = 1099511628211ull;

BITMAPINFO topDownInfo(int widthPx, int heightPx) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = widthPx;
    info.bmiHeader.biHeight = -heightPx;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

COLORREF toColorRef(std::uint32_t pixel) {
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

} // namespace

Picture::Picture(int widthPx, int heightPx)
    : m_widthPx(widthPx), m_heightPx(heightPx),
      m_pixels(static_cast<size_t>(widthPx) * static_cast<size_t>(heightPx), kOpaque) {
}

Picture Picture::ofContext(HDC source, int x, int y, int widthPx, int heightPx) {
    if (!source || widthPx <= 0 || heightPx <= 0)
        return {};
    Picture picture(widthPx, heightPx);
    const BITMAPINFO info = topDownInfo(widthPx, heightPx);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HDC memory = CreateCompatibleDC(nullptr);
    HGDIOBJ former = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, widthPx, heightPx, source, x, y, SRCCOPY);
    GdiFlush();
    const auto* first = static_cast<const std::uint32_t*>(bits);
    std::transform(first, first + picture.m_pixels.size(), picture.m_pixels.begin(),
                   [](std::uint32_t pixel) { return pixel | kOpaque; });
    SelectObject(memory, former);
    DeleteDC(memory);
    DeleteObject(bitmap);
    return picture;
}

Picture Picture::ofClient(HWND window) {
    RECT client = {};
    if (!GetClientRect(window, &client))
        return {};
    HDC context = GetDCEx(window, nullptr, DCX_CACHE);
    Picture picture = ofContext(context, 0, 0, client.right, client.bottom);
    ReleaseDC(window, context);
    return picture;
}

Picture Picture::ofWindow(HWND window) {
    RECT rect = {};
    if (!GetWindowRect(window, &rect))
        return {};
    HDC context = GetDCEx(window, nullptr, DCX_CACHE | DCX_WINDOW);
    Picture picture = ofContext(context, 0, 0, rect.right - rect.left, rect.bottom - rect.top);
    ReleaseDC(window, context);
    return picture;
}

Picture Picture::ofScreen(const RECT& screen) {
    HDC context = GetDC(nullptr);
    Picture picture =
        ofContext(context, screen.left, screen.top, screen.right - screen.left, screen.bottom - screen.top);
    ReleaseDC(nullptr, context);
    return picture;
}

Picture Picture::ofScreen() {
    return ofScreen({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
}

Picture Picture::ofBitmap(HBITMAP bitmap) {
    BITMAP shape = {};
    if (!GetObjectW(bitmap, sizeof shape, &shape))
        return {};
    Picture picture(shape.bmWidth, std::abs(shape.bmHeight));
    BITMAPINFO info = topDownInfo(picture.m_widthPx, picture.m_heightPx);
    HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(picture.m_heightPx), picture.m_pixels.data(), &info,
              DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    for (auto& pixel : picture.m_pixels)
        pixel |= kOpaque;
    return picture;
}

COLORREF Picture::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_widthPx || y >= m_heightPx)
        return CLR_INVALID;
    return toColorRef(
        m_pixels[static_cast<size_t>(y) * static_cast<size_t>(m_widthPx) + static_cast<size_t>(x)]);
}

RECT Picture::cut(const RECT& area) const {
    const RECT all = {0, 0, m_widthPx, m_heightPx};
    RECT result = {};
    IntersectRect(&result, &area, &all);
    return result;
}

int Picture::count(COLORREF colour, const RECT& area) const {
    const RECT inside = cut(area);
    int found = 0;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x)
            found += at(x, y) == colour;
    }
    return found;
}

int Picture::count(COLORREF colour) const {
    return count(colour, {0, 0, m_widthPx, m_heightPx});
}

int Picture::colours(const RECT& area) const {
    const RECT inside = cut(area);
    std::set<COLORREF> seen;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x)
            seen.insert(at(x, y));
    }
    return static_cast<int>(seen.size());
}

int Picture::differences(const Picture& other) const {
    if (m_widthPx != other.m_widthPx || m_heightPx != other.m_heightPx)
        return -1;
    int found = 0;
    for (size_t i = 0; i < m_pixels.size(); ++i)
        found += m_pixels[i] != other.m_pixels[i];
    return found;
}

Picture Picture::part(const RECT& area) const {
    const RECT inside = cut(area);
    Picture result(inside.right - inside.left, inside.bottom - inside.top);
    size_t next = 0;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x)
            result.m_pixels[next++] =
                m_pixels[static_cast<size_t>(y) * static_cast<size_t>(m_widthPx) + static_cast<size_t>(x)];
    }
    return result;
}

std::uint64_t Picture::hash() const {
    std::uint64_t value = kHashStart ^ static_cast<std::uint64_t>(m_widthPx);
    for (std::uint32_t pixel : m_pixels)
        value = (value ^ pixel) * kHashFactor;
    return value;
}

std::wstring picturePath(const std::wstring& name) {
    return (std::filesystem::path(QV_TEST_PICTURES) / (name + L".png")).wstring();
}

} // namespace qvtest
