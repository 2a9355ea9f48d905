// Guards.h: owners of what has to be given back: COM, its pointers and memory, id lists, handles, device
// contexts, selections.
#pragma once

#include <windows.h>
#include <objbase.h>
#include <shtypes.h>

#include <memory>

namespace _qv_commonctrl {

// COM for the length of a scope. On a thread that has COM in another form already that form serves as well.
class ComScope {
  public:
    ComScope() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

  private:
    HRESULT m_result;
};

template <class Interface> class ComPtr {
  public:
    ComPtr() = default;
    ~ComPtr() {
        if (m_object)
            m_object->Release();
    }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    Interface** operator&() { return &m_object; } // for functions that fill an empty pointer
    Interface* operator->() const { return m_object; }
    Interface* Get() const { return m_object; }

  private:
    Interface* m_object = nullptr;
};

// Frees what the shell has allocated for its caller. The kinds of id list differ only in where they begin.
struct CoTaskFree {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};
using Pidl = std::unique_ptr<ITEMIDLIST_ABSOLUTE, CoTaskFree>;
using ChildPidl = std::unique_ptr<ITEMID_CHILD, CoTaskFree>;
using ShellText = std::unique_ptr<wchar_t, CoTaskFree>;

// Takes a file, an event or a thread; what stands for "none" is null here.
struct HandleClose {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, HandleClose>;

struct FindCloser {
    using pointer = HANDLE;
    void operator()(HANDLE search) const { FindClose(search); }
};
using FindHandle = std::unique_ptr<HANDLE, FindCloser>;

// A handle of a function that tells failure by INVALID_HANDLE_VALUE.
template <class Owner> Owner Valid(HANDLE handle) {
    return Owner(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

// No box of the system ("there is no disk in the drive") stands up on this thread: what fails just fails.
class QuietDrives {
  public:
    QuietDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &m_former); }
    ~QuietDrives() { SetThreadErrorMode(m_former, nullptr); }
    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;

  private:
    DWORD m_former = 0;
};

// The device context of the screen.
class ScreenDc {
  public:
    ScreenDc() : m_dc(GetDC(nullptr)) {}
    ~ScreenDc() { ReleaseDC(nullptr, m_dc); }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;
    operator HDC() const { return m_dc; }

  private:
    HDC m_dc;
};

struct DcDelete {
    using pointer = HDC;
    void operator()(HDC dc) const { DeleteDC(dc); }
};
using MemoryDc = std::unique_ptr<HDC, DcDelete>;

// Selects a GDI object for a scope; null selects nothing.
class DcSelection {
  public:
    DcSelection(HDC dc, HGDIOBJ object) : m_dc(dc), m_former(object ? SelectObject(dc, object) : nullptr) {}
    ~DcSelection() {
        if (m_former)
            SelectObject(m_dc, m_former);
    }
    DcSelection(const DcSelection&) = delete;
    DcSelection& operator=(const DcSelection&) = delete;

  private:
    HDC m_dc;
    HGDIOBJ m_former;
};

// Puts a device context back as it was: what others select into it, clip and colour.
class DcState {
  public:
    explicit DcState(HDC dc) : m_dc(dc), m_saved(SaveDC(dc)) {}
    ~DcState() { RestoreDC(m_dc, m_saved); }
    DcState(const DcState&) = delete;
    DcState& operator=(const DcState&) = delete;

  private:
    HDC m_dc;
    int m_saved;
};

} // namespace _qv_commonctrl
