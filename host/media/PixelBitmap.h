// PixelBitmap.h: a bitmap whose pixels the program reads and writes itself.
#pragma once

#include <afxwin.h>

// 32 bits a pixel (blue, green, red, alpha), the top row first.
class CPixelBitmap {
  public:
    // Makes a black one in place of what was there. False, and none is there, when the system has no memory for it.
    bool Create(CSize size);
    void Clear();

    bool IsEmpty() const { return !m_bits; }
    CBitmap* Bitmap() { return &m_bitmap; } // to select; without a handle when there is none
    CSize Size() const { return m_size; }
    UINT Stride() const { return static_cast<UINT>(m_size.cx) * kBytesPerPixel; } // bytes of a row
    UINT ByteCount() const { return Stride() * static_cast<UINT>(m_size.cy); }
    BYTE* Bits() const { return m_bits; } // null when there is none

  private:
    static constexpr UINT kBytesPerPixel = 4;

    CBitmap m_bitmap;
    CSize m_size;
    BYTE* m_bits = nullptr; // the bitmap's
};
