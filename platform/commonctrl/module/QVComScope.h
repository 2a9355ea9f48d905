// QVComScope.h: COM for the length of a scope, and pointers that release what they hold.
#pragma once

#include <windows.h>
#include <objbase.h>

namespace _qv_commonctrl {

// On a thread that has COM in another form already that form serves as well.
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

} // namespace _qv_commonctrl
