// A filter site as the system's dialog has one: it keeps the filter that it is given.
#pragma once

#include <windows.h>
#include <shobjidl.h>

namespace folderfilter_test {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // COM interfaces have no virtual destructor
class FakeFilterSite final : public IFolderFilterSite {
  public:
    FakeFilterSite() = default;
    FakeFilterSite(const FakeFilterSite&) = delete;
    FakeFilterSite& operator=(const FakeFilterSite&) = delete;
    ~FakeFilterSite() {
        if (filter)
            filter->Release();
    }

    IFolderFilter* filter = nullptr;
    int references = 0; // given out and not yet given back
    bool known = true;  // false: the object has no such interface

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (!known || !(IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IFolderFilterSite)))
            return E_NOINTERFACE;
        *object = static_cast<IFolderFilterSite*>(this);
        ++references;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
    HRESULT STDMETHODCALLTYPE SetFilter(IUnknown* unknown) override {
        return unknown->QueryInterface(IID_IFolderFilter, reinterpret_cast<void**>(&filter));
    }
};
#pragma GCC diagnostic pop

} // namespace folderfilter_test
