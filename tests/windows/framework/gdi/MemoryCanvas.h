// A small bitmap to draw on and read back.
#pragma once

#include "afxwin.h"

class MemoryCanvas {
  public:
    static constexpr int kSizePx = 16;

    MemoryCanvas() {
        CDC screen;
        screen.Attach(::GetDC(nullptr));
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, kSizePx, kSizePx);
        ::ReleaseDC(nullptr, screen.Detach());
        m_former = m_dc.SelectObject(&m_bitmap);
        m_dc.PatBlt(0, 0, kSizePx, kSizePx, WHITENESS);
    }
    ~MemoryCanvas() { m_dc.SelectObject(m_former); }
    MemoryCanvas(const MemoryCanvas&) = delete;
    MemoryCanvas& operator=(const MemoryCanvas&) = delete;

    CDC& DC() { return m_dc; }
    CBitmap& Bitmap() { return m_bitmap; }
    // How many pixels have this colour.
    int Count(COLORREF colour) const {
        int count = 0;
        for (int y = 0; y < kSizePx; ++y)
            for (int x = 0; x < kSizePx; ++x)
                count += m_dc.GetPixel(x, y) == colour ? 1 : 0;
        return count;
    }

  private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_former = nullptr;
};
