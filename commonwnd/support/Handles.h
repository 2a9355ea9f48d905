// Owners of what the system hands out, each released at the end of its scope: COM interfaces, memory of the task
// allocator with the shell's id lists, drawing objects, device contexts and what is selected into them.
//
//     ComHandle<IShellLinkW> link;
//     if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
//                                   link.ReceiveAny())))
//         return;
//     const WindowDC dc(control);
//     const Selection font(dc.Get(), QV_GetSysFont(QVFONT_UI, dpi)->GetSafeHandle());
#pragma once

#include <windows.h>
#include <objbase.h>
#include <shtypes.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace _qv_commonwnd {

// A COM interface; empty or one reference to it.
template <class Interface> class ComHandle {
  public:
    ComHandle() = default;
    explicit ComHandle(Interface* reference) : m_p(reference) {}
    ComHandle(ComHandle&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    ComHandle& operator=(ComHandle&& other) noexcept {
        ComHandle former(std::move(other));
        std::swap(m_p, former.m_p);
        return *this;
    }
    ComHandle(const ComHandle&) = delete;
    ComHandle& operator=(const ComHandle&) = delete;
    ~ComHandle() { Release(); }

    Interface* Get() const { return m_p; }
    Interface* operator->() const { return m_p; }
    explicit operator bool() const { return m_p != nullptr; }

    // For a function that hands a reference out; what was held is released before.
    Interface** Receive() {
        Release();
        return &m_p;
    }
    void** ReceiveAny() { return reinterpret_cast<void**>(Receive()); }

  private:
    void Release() {
        if (Interface* const former = std::exchange(m_p, nullptr))
            former->Release();
    }

    Interface* m_p = nullptr;
};

// Memory of the task allocator.
struct TaskMemoryFree {
    void operator()(void* memory) const { ::CoTaskMemFree(memory); }
};
using TaskText = std::unique_ptr<wchar_t, TaskMemoryFree>;

// An item of the shell's name space by its whole way from the root.
struct ItemIdFree {
    using pointer = PIDLIST_ABSOLUTE;
    void operator()(PIDLIST_ABSOLUTE id) const { ::CoTaskMemFree(id); }
};
using OwnedItemId = std::unique_ptr<ITEMIDLIST, ItemIdFree>;

// An item by its name in a folder.
struct ChildIdFree {
    using pointer = PITEMID_CHILD;
    void operator()(PITEMID_CHILD id) const { ::CoTaskMemFree(id); }
};
using OwnedChildId = std::unique_ptr<ITEMIDLIST, ChildIdFree>;

struct IconDestroy {
    using pointer = HICON;
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using OwnedIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroy>;

struct BitmapDelete {
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDelete>;

// The device context of a window's client area, or of the screen for null; Get() is null when the system has none left.
class WindowDC {
  public:
    explicit WindowDC(HWND window) : m_window(window), m_dc(::GetDC(window)) {}
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    ~WindowDC() {
        if (m_dc)
            ::ReleaseDC(m_window, m_dc);
    }

    HDC Get() const { return m_dc; }
    explicit operator bool() const { return m_dc != nullptr; }

  private:
    HWND m_window;
    HDC m_dc;
};

// A font, pen, brush or bitmap in a device context; the former one comes back at the end. Neither is owned. Null for
// either changes nothing.
class Selection {
  public:
    Selection(HDC dc, HGDIOBJ object)
        : m_dc(dc), m_former(dc && object ? ::SelectObject(dc, object) : nullptr) {}
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() {
        if (m_former)
            ::SelectObject(m_dc, m_former);
    }

  private:
    HDC m_dc;
    HGDIOBJ m_former;
};

} // namespace _qv_commonwnd
