// A COM interface that is released at the end of its scope.
#pragma once

#include <windows.h>
#include <unknwn.h>

#include <memory>

namespace _qv_commonwnd {

struct ComRelease {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class Interface> using ComHandle = std::unique_ptr<Interface, ComRelease>;

} // namespace _qv_commonwnd
