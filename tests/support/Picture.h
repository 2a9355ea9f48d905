// Pixels of a window or of the screen, read back, compared and kept as PNG files.
//
//   Picture shot = Picture::ofWindow(dialog);
//   EXPECT_EQ(RGB(38, 40, 44), shot.at(5, 5));
//   shot.save(picturePath(L"dialog"));
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace qvtest {

class Picture {
  public:
    Picture() = default; // empty: 0 x 0

    // All black, opaque.
    Picture(int widthPx, int heightPx);

    // The client area with all child windows, as it was last painted.
    static Picture ofClient(HWND window);

    // The window with its frame, as it was last painted.
    static Picture ofWindow(HWND window);

    // A rectangle of the screen, in screen pixels; shows what covers a window, too.
    static Picture ofScreen(const RECT& screen);

    // The whole screen.
    static Picture ofScreen();

    // A bitmap's pixels.
    static Picture ofBitmap(HBITMAP bitmap);

    // A PNG file (or any other format the system decodes); empty when it cannot be read.
    static Picture load(const std::wstring& path);

    // Writes a PNG file, making its folder if need be. False when that fails.
    bool save(const std::wstring& path) const;

    int width() const { return m_widthPx; }
    int height() const { return m_heightPx; }
    bool empty() const { return m_pixels.empty(); }

    // The colour at a pixel, CLR_INVALID outside.
    COLORREF at(int x, int y) const;

    // How many pixels of the rectangle have this colour. The rectangle is cut to the picture.
    int count(COLORREF colour, const RECT& area) const;
    int count(COLORREF colour) const;

    // How many different colours the rectangle holds: 1 is a plain area.
    int colours(const RECT& area) const;

    // How many pixels differ; -1 when the sizes differ.
    int differences(const Picture& other) const;

    // A part of the picture, cut to it.
    Picture part(const RECT& area) const;

    // Equal for equal pictures, different for nearly all others.
    std::uint64_t hash() const;

    bool operator==(const Picture& other) const = default;

  private:
    static Picture ofContext(HDC source, int x, int y, int widthPx, int heightPx);
    RECT cut(const RECT& area) const;

    int m_widthPx = 0;
    int m_heightPx = 0;
    std::vector<std::uint32_t> m_pixels; // 0xFFRRGGBB, rows from the top
};

// Where pictures of tests go: build/test-pictures/NAME.png.
std::wstring picturePath(const std::wstring& name);

} // namespace qvtest
