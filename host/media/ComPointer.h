// ComPointer.h: a COM interface that is released at the end of its scope.
#pragma once

template <class Interface> class ComPointer {
  public:
    ComPointer() = default;
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() {
        if (m_pointer)
            m_pointer->Release();
    }

    // Where a function puts an interface that it hands out; once.
    Interface** operator&() { return &m_pointer; }
    Interface* operator->() const { return m_pointer; }
    Interface* Get() const { return m_pointer; }

  private:
    Interface* m_pointer = nullptr;
};
