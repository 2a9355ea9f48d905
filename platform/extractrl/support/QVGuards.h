// Owners of what the system hands out, each given back at the end of its scope: the clipboard, bitmaps,
// memory device contexts, what is selected into a device context and how one was set up.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace _qv_extractrl {

class QVClipboardScope {
  public:
    explicit QVClipboardScope(HWND wnd) : m_open(::OpenClipboard(wnd) != FALSE) {}
    QVClipboardScope(const QVClipboardScope&) = delete;
    QVClipboardScope& operator=(const QVClipboardScope&) = delete;
    ~QVClipboardScope() {
        if (m_open)
            ::CloseClipboard();
    }
    bool IsOpen() const { return m_open; }

  private:
    bool m_open;
};

struct QVBitmapDelete {
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using QVOwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, QVBitmapDelete>;

// A memory device context that a bitmap, which must outlive it, is copied from.
class QVBitmapDC {
  public:
    explicit QVBitmapDC(HBITMAP bitmap)
        : m_dc(::CreateCompatibleDC(nullptr)), m_former(m_dc ? ::SelectObject(m_dc, bitmap) : nullptr) {}
    QVBitmapDC(const QVBitmapDC&) = delete;
    QVBitmapDC& operator=(const QVBitmapDC&) = delete;
    ~QVBitmapDC() {
        if (m_former)
            ::SelectObject(m_dc, m_former);
        if (m_dc)
            ::DeleteDC(m_dc);
    }
    // False when the system is out of drawing objects, or the bitmap is selected elsewhere.
    bool IsReady() const { return m_former != nullptr; }
    HDC Get() const { return m_dc; }

  private:
    HDC m_dc;
    HGDIOBJ m_former;
};

// A font, pen or brush in a device context; null changes nothing.
class QVSelection {
  public:
    QVSelection(HDC dc, HGDIOBJ object) : m_dc(dc), m_former(object ? ::SelectObject(dc, object) : nullptr) {}
    QVSelection(const QVSelection&) = delete;
    QVSelection& operator=(const QVSelection&) = delete;
    ~QVSelection() {
        if (m_former)
            ::SelectObject(m_dc, m_former);
    }

  private:
    HDC m_dc;
    HGDIOBJ m_former;
};

// Clipping, colours and selections of a device context come back as they were.
class QVSavedDC {
  public:
    explicit QVSavedDC(HDC dc) : m_dc(dc), m_state(::SaveDC(dc)) {}
    QVSavedDC(const QVSavedDC&) = delete;
    QVSavedDC& operator=(const QVSavedDC&) = delete;
    ~QVSavedDC() { ::RestoreDC(m_dc, m_state); }

  private:
    HDC m_dc;
    int m_state;
};

} // namespace _qv_extractrl
